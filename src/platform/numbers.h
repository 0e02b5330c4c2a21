// Conversions between numbers and texts, and the roundings to integer types.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trelvo {

// The user's regional settings, as far as numbers go. Both separators are one character of UTF-8.
struct RegionalFormat {
  std::string decimal = ",";
  std::string group = ".";
};

// The leading number of a text, with a point; blanks and tabs are skipped anywhere in it. 0 for none.
double numeric_prefix(std::string_view text);

// Locale-independent: 15 (7 for a 32-bit float) significant digits, a blank in front unless negative.
std::string number_text(double value);
std::string number_text(float value);
// The same without the blank in front.
std::string number_text_trimmed(double value);
std::string number_text_trimmed(float value);

// By the regional settings. Error 13 for no number, 6 when out of range.
double regional_number(std::string_view text, const RegionalFormat& format);
std::string regional_text(double value, const RegionalFormat& format);
std::string regional_text(float value, const RegionalFormat& format);
bool is_regional_number(std::string_view text, const RegionalFormat& format);

// "##0.00" and its like with `decimals` decimals, halves away from zero; `grouped` is "##,#0.00".
std::string fixed_text(double value, int decimals, const RegionalFormat& format, bool grouped = false);

// To nearest, halves to the even neighbour. Error 6 outside the type, NaN included.
std::int16_t round_to_int16(double value);
std::int32_t round_to_int32(double value);
// Error 6 if a 32-bit float does not hold it, NaN included.
float to_float(double value);
// The value as it is, with the same error.
double within_float(double value);
double round_even(double value);
// The same without the error, held at the type's ends; NaN gives 0. For device coordinates.
std::int32_t round_clamped(double value);

// Shortest text that reads back equal, for the scripted face.
std::string shortest_text(double value);
std::string shortest_text(float value);

}  // namespace trelvo
