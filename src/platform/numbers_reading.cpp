#include "platform/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// A number taken from a text, in the plain form "-12.5e+3".
class PlainNumber {
 public:
  void negative() { text_ += '-'; }
  void digit(char c) {
    text_ += c;
    any_ = true;
    if (c != '0') significant_ = true;
    if (point_ && !significant_) --magnitude_;
    if (!point_ && significant_) ++magnitude_;
  }
  void point() {
    text_ += '.';
    point_ = true;
  }
  void exponent(bool is_negative, std::string_view digits) {
    text_ += is_negative ? "e-" : "e+";
    text_ += digits;
    negative_exponent_ = is_negative;
    has_exponent_ = true;
  }

  bool any() const { return any_; }
  bool has_point() const { return point_; }

  // Out of range: infinity. Too small: 0.
  double value() const {
    double result = 0;
    const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), result);
    if (error != std::errc::result_out_of_range) return result;
    const double sign = text_.front() == '-' ? -1 : 1;
    return sign * (too_large() ? std::numeric_limits<double>::infinity() : 0.0);
  }

 private:
  // Only asked where the value fits no double: its size then has the sign of its decimal exponent.
  bool too_large() const {
    if (!has_exponent_) return magnitude_ > 0;
    const std::size_t mark = text_.rfind('e');
    long long written = 0;
    const auto [end, error] = std::from_chars(text_.data() + mark + 2, text_.data() + text_.size(), written);
    if (error == std::errc::result_out_of_range) return !negative_exponent_;
    return magnitude_ + (negative_exponent_ ? -written : written) > 0;
  }

  std::string text_;
  long long magnitude_ = 0;
  bool any_ = false;
  bool point_ = false;
  bool significant_ = false;
  bool has_exponent_ = false;
  bool negative_exponent_ = false;
};

bool is_exponent_mark(char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; }

// The exponent that stands at the front of the text, if one is there in full; gives its length, 0 for none.
std::size_t read_exponent(std::string_view text, PlainNumber& number) {
  if (text.empty() || !is_exponent_mark(text[0])) return 0;
  std::size_t i = 1;
  const bool is_negative = i < text.size() && text[i] == '-';
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  const std::size_t first = i;
  while (i < text.size() && is_digit(text[i])) ++i;
  if (i == first) return 0;
  number.exponent(is_negative, text.substr(first, i - first));
  return i;
}

std::string_view without_outer_blanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

// Whether a group separator between two digits stands at `at`.
bool is_grouping(std::string_view text, std::size_t at, const std::string& group) {
  if (group.empty() || at == 0 || !is_digit(text[at - 1]) || !text.substr(at).starts_with(group)) return false;
  const std::size_t next = at + group.size();
  return next < text.size() && is_digit(text[next]);
}

// No value for a text that is no number, infinity for one out of range.
std::optional<double> read_regional(std::string_view text, const RegionalFormat& format) {
  text = without_outer_blanks(text);
  PlainNumber number;
  std::size_t i = 0;
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
    if (text[0] == '-') number.negative();
    ++i;
  }
  while (i < text.size()) {
    if (is_digit(text[i])) {
      number.digit(text[i++]);
    } else if (!number.has_point() && !format.decimal.empty() && text.substr(i).starts_with(format.decimal)) {
      number.point();
      i += format.decimal.size();
    } else if (!number.has_point() && is_grouping(text, i, format.group)) {
      i += format.group.size();
    } else {
      break;
    }
  }
  if (!number.any()) return std::nullopt;
  i += read_exponent(text.substr(i), number);
  if (i != text.size()) return std::nullopt;
  return number.value();
}

}  // namespace

double numeric_prefix(std::string_view text) {
  std::string packed;
  for (const char c : text) {
    if (c != ' ' && c != '\t') packed += c;
  }
  PlainNumber number;
  std::size_t i = 0;
  if (!packed.empty() && (packed[0] == '-' || packed[0] == '+')) {
    if (packed[0] == '-') number.negative();
    ++i;
  }
  for (; i < packed.size(); ++i) {
    if (is_digit(packed[i])) {
      number.digit(packed[i]);
    } else if (packed[i] == '.' && !number.has_point()) {
      number.point();
    } else {
      break;
    }
  }
  if (!number.any()) return 0;
  read_exponent(std::string_view(packed).substr(i), number);
  return number.value();
}

double regional_number(std::string_view text, const RegionalFormat& format) {
  const std::optional<double> number = read_regional(text, format);
  if (!number) throw RuntimeError(error_type);
  if (std::isinf(*number)) throw RuntimeError(error_overflow);
  return *number;
}

bool is_regional_number(std::string_view text, const RegionalFormat& format) {
  const std::optional<double> number = read_regional(text, format);
  return number && std::isfinite(*number);
}

}  // namespace trelvo
