// Values as a script prints them: texts in double quotes, truth as -1 or 0, numbers with a point.
#pragma once

#include <string>
#include <type_traits>

#include "platform/numbers.h"
#include "platform/text.h"

namespace trelvo {

inline std::string shown(const std::string& value) { return trelvo::quoted(value); }

template <class T>
requires std::is_arithmetic_v<T> std::string shown(T value) {
  if constexpr (std::is_same_v<T, bool>) {
    return value ? "-1" : "0";
  } else if constexpr (std::is_same_v<T, float>) {
    return shortest_text(value);
  } else if constexpr (std::is_same_v<T, double>) {
    return shortest_text(value);
  } else {
    return std::to_string(value);
  }
}

}  // namespace trelvo
