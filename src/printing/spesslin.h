// The dialog of the print thickness of each palette colour.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links its handlers. Once.
void prepara_Spesslin(trelvobas& bas);

}  // namespace trelvo
