// Stretches of a row with real ends, relative to some origin.
#pragma once

#include <algorithm>
#include <cmath>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

// Pixels within this of being covered belong to a figure, so that rounding does not tell its two edges apart.
constexpr double slack = 1e-9;
// Beyond every figure.
constexpr double far_away = 1e11;

// Quicker than the library's, for values of 64 bits.
inline std::int64_t rounded_down(double value) {
  const auto cut = static_cast<std::int64_t>(value);
  return cut - (value < static_cast<double>(cut) ? 1 : 0);
}
inline std::int64_t rounded_up(double value) { return -rounded_down(-value); }

struct Interval {
  double left = far_away;
  double right = -far_away;

  bool empty() const { return left > right; }
  void hold(const Interval& other) {
    if (other.empty()) return;
    left = std::min(left, other.left);
    right = std::max(right, other.right);
  }
  Interval cut(const Interval& other) const { return {std::max(left, other.left), std::min(right, other.right)}; }

  // The pixels in it; none for an empty interval.
  Range pixels(std::int64_t origin) const {
    const Interval held = cut({-far_away, far_away});
    return {origin + rounded_up(held.left - slack), origin + rounded_down(held.right + slack)};
  }
};

constexpr Interval nothing{};
constexpr Interval whole_row{-far_away, far_away};

// The x for which low <= factor * x <= high.
inline Interval solution(double factor, double low, double high) {
  if (factor == 0) return low <= 0 && high >= 0 ? whole_row : nothing;
  return factor > 0 ? Interval{low / factor, high / factor} : Interval{high / factor, low / factor};
}

struct Offset {
  double x = 0;
  double y = 0;
};

}  // namespace trelvo::raster
