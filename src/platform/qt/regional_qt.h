#pragma once

#include "platform/numbers.h"

namespace trelvo {

// Number format of the session's regional settings.
RegionalFormat system_regional_format();

}  // namespace trelvo
