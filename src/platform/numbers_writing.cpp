#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace trelvo {

namespace {

constexpr int double_digits = 15;
constexpr int float_digits = 7;
constexpr std::size_t longest_number = 64;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

template <class Real>
std::string general(Real value, int digits) {
  std::array<char, longest_number> buffer;
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, digits);
  return {buffer.data(), end};
}

// With capitals; the sign of a zero and of what is no number is dropped.
template <class Real>
std::string significant(Real value, int digits) {
  if (value == 0) return "0";
  if (std::isnan(value)) return "NAN";
  std::string text = general(value, digits);
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

std::string without_leading_zero(std::string text) {
  const std::size_t first = text[0] == '-' ? 1 : 0;
  if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
  return text;
}

template <class Real>
std::string plain_text(Real value, int digits) {
  return without_leading_zero(significant(value, digits));
}

std::string signed_column(std::string text) { return text[0] == '-' ? text : ' ' + text; }

template <class Real>
std::string regional(Real value, int digits, const RegionalFormat& format) {
  std::string text = significant(value, digits);
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, format.decimal);
  return text;
}

// Decimal digits d0 d1 d2 ... of the value d0.d1d2... times ten to the exponent.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

template <class Real>
Decimal decimal_of(Real value, int digits) {
  std::array<char, longest_number> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                          std::chars_format::scientific, digits - 1);
  Decimal decimal;
  const char* c = buffer.data();
  for (; *c != 'e'; ++c) {
    if (is_digit(*c)) decimal.digits += *c;
  }
  if (*++c == '+') ++c;
  std::from_chars(c, end, decimal.exponent);
  return decimal;
}

// The digits before and after the point, `decimals` of these.
struct FixedDigits {
  std::string whole;
  std::string fraction;
};

FixedDigits laid_out(const Decimal& decimal, int decimals) {
  const auto digit_at = [&](int power) {
    const int i = decimal.exponent - power;
    return i >= 0 && i < static_cast<int>(decimal.digits.size()) ? decimal.digits[static_cast<std::size_t>(i)] : '0';
  };
  FixedDigits fixed;
  for (int power = std::max(decimal.exponent, 0); power >= 0; --power) fixed.whole += digit_at(power);
  for (int power = -1; power >= -decimals; --power) fixed.fraction += digit_at(power);
  return fixed;
}

// One more at the last place, carried as far as needed.
void increment(FixedDigits& fixed) {
  for (std::string* part : {&fixed.fraction, &fixed.whole}) {
    for (auto c = part->rbegin(); c != part->rend(); ++c) {
      if (*c != '9') {
        ++*c;
        return;
      }
      *c = '0';
    }
  }
  fixed.whole.insert(0, 1, '1');
}

// Halves go away from zero as the digits of the number read, not as its binary value lies.
FixedDigits rounded_half_away(const Decimal& decimal, int decimals) {
  FixedDigits fixed = laid_out(decimal, decimals + 1);
  const bool up = fixed.fraction.back() >= '5';
  fixed.fraction.pop_back();
  if (up) increment(fixed);
  return fixed;
}

bool all_zero(const std::string& digits) { return digits.find_first_not_of('0') == std::string::npos; }

void insert_groups(std::string& whole, const std::string& group) {
  for (std::size_t left = whole.size(); left > 3;) {
    left -= 3;
    whole.insert(left, group);
  }
}

// The fewest significant digits whose correctly rounded text reads back equal.
template <class Real>
Decimal shortest_decimal(Real value) {
  std::array<char, longest_number> buffer;
  const auto nearest =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
  const auto fewest = std::count_if(buffer.data(), std::find(buffer.data(), nearest.ptr, 'e'), is_digit);
  for (auto digits = static_cast<int>(fewest);; ++digits) {
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                            std::chars_format::scientific, digits - 1);
    Real back = 0;
    std::from_chars(buffer.data(), end, back);
    if (back == std::fabs(value) || digits == std::numeric_limits<Real>::max_digits10) return decimal_of(value, digits);
  }
}

template <class Real>
std::string shortest(Real value) {
  if (!std::isfinite(value)) return std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
  const Decimal decimal = shortest_decimal(value);
  const int count = static_cast<int>(decimal.digits.size());
  std::string text = std::signbit(value) ? "-" : "";
  if (decimal.exponent < -4 || decimal.exponent > 16) return general(value, count);
  const FixedDigits fixed = laid_out(decimal, std::max(count - 1 - decimal.exponent, 0));
  text += fixed.whole;
  return fixed.fraction.empty() ? text : text + '.' + fixed.fraction;
}

}  // namespace

std::string number_text(double value) { return signed_column(plain_text(value, double_digits)); }
std::string number_text(float value) { return signed_column(plain_text(value, float_digits)); }
std::string number_text_trimmed(double value) { return plain_text(value, double_digits); }
std::string number_text_trimmed(float value) { return plain_text(value, float_digits); }

std::string regional_text(double value, const RegionalFormat& format) { return regional(value, double_digits, format); }
std::string regional_text(float value, const RegionalFormat& format) { return regional(value, float_digits, format); }

std::string fixed_text(double value, int decimals, const RegionalFormat& format, bool grouped) {
  if (!std::isfinite(value)) return significant(value, double_digits);
  FixedDigits fixed = rounded_half_away(decimal_of(value, double_digits), decimals);
  const bool minus = value < 0 && !(all_zero(fixed.whole) && all_zero(fixed.fraction));
  if (grouped) insert_groups(fixed.whole, format.group);
  std::string text = (minus ? "-" : "") + fixed.whole;
  return fixed.fraction.empty() ? text : text + format.decimal + fixed.fraction;
}

std::string shortest_text(double value) { return shortest(value); }
std::string shortest_text(float value) { return shortest(value); }

}  // namespace trelvo
