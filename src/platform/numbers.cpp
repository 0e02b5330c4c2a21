#include "platform/numbers.h"

#include <cmath>
#include <limits>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

template <class Integer>
Integer rounded(double value) {
  const double whole = round_even(value);
  if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
    throw RuntimeError(error_overflow);
  return static_cast<Integer>(whole);
}

}  // namespace

std::int16_t round_to_int16(double value) { return rounded<std::int16_t>(value); }
std::int32_t round_to_int32(double value) { return rounded<std::int32_t>(value); }
float to_float(double value) {
  const auto narrow = static_cast<float>(value);
  if (!std::isfinite(narrow)) throw RuntimeError(error_overflow);
  return narrow;
}

double within_float(double value) {
  to_float(value);
  return value;
}

double round_even(double value) { return std::nearbyint(value); }

std::int32_t round_clamped(double value) {
  constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
  if (value >= highest) return highest;
  if (value <= lowest) return lowest;
  if (std::isnan(value)) return 0;
  return static_cast<std::int32_t>(std::lrint(value));
}

}  // namespace trelvo
