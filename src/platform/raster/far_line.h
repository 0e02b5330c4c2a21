// Lines whose device coordinates are any numbers, brought to the 32 bits that the painting of lines takes.
#pragma once

#include <cmath>
#include <optional>

#include "platform/graphics.h"

namespace trelvo::raster {

struct FarLine {
  double x1, y1, x2, y2;
};

struct NearLine {
  Point from, to;
};

// Halves to the even neighbour. The values fit in 32 bits.
inline Point near_point(double x, double y) {
  return {static_cast<std::int32_t>(std::lrint(x)), static_cast<std::int32_t>(std::lrint(y))};
}

// The whole line if it fits, otherwise the part near enough to be seen. None if there is none, or a number is none.
std::optional<NearLine> reachable_part(const FarLine& line);

}  // namespace trelvo::raster
