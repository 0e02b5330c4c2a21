// Every angle is computed with this value.
#pragma once

#include <cmath>

namespace trelvo {

inline const double pigreco = 4 * std::atan(1);

}  // namespace trelvo
