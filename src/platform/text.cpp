#include "platform/text.h"

#include <algorithm>
#include <array>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

bool is_continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// Where the character after `count` characters begins.
std::size_t offset_of(std::string_view text, std::size_t count) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (is_continuation(text[i])) continue;
    if (count == 0) return i;
    --count;
  }
  return text.size();
}

// What the code page has at 0x80 to 0x9F; the five codes without a character stand for themselves.
constexpr std::array<char32_t, 32> upper_controls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t no_character = 0xFFFFFFFF;

struct Sequence {
  std::size_t length;
  char32_t lead_bits;
  char32_t smallest;
};

// Length 0 for a byte that begins no character.
Sequence sequence_of(unsigned char lead) {
  if (lead < 0x80) return {1, lead, 0};
  if (lead >= 0xC0 && lead < 0xE0) return {2, lead & 0x1FU, 0x80};
  if (lead >= 0xE0 && lead < 0xF0) return {3, lead & 0x0FU, 0x800};
  if (lead >= 0xF0 && lead < 0xF8) return {4, lead & 0x07U, 0x10000};
  return {0, 0, 0};
}

// Takes one character off the front; a byte that is no part of one is taken alone and gives no_character.
char32_t take_character(std::string_view& text) {
  const Sequence sequence = sequence_of(static_cast<unsigned char>(text.front()));
  char32_t code = sequence.lead_bits;
  bool valid = sequence.length > 0 && sequence.length <= text.size();
  for (std::size_t i = 1; valid && i < sequence.length; ++i) {
    valid = is_continuation(text[i]);
    code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  valid = valid && code >= sequence.smallest && code <= 0x10FFFF && !surrogate;
  text.remove_prefix(valid ? sequence.length : 1);
  return valid ? code : no_character;
}

char byte_of(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto found = std::find(upper_controls.begin(), upper_controls.end(), code);
  if (found == upper_controls.end()) return '?';
  return static_cast<char>(0x80 + (found - upper_controls.begin()));
}

// For the codes of the code page, all below 0x10000.
void append_utf8(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
    return;
  }
  if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  text += static_cast<char>(0x80 | (code & 0x3F));
}

}  // namespace

std::size_t text_length(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_continuation));
}

std::string text_left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, offset_of(text, count)));
}

std::string text_right(std::string_view text, std::size_t count) {
  const std::size_t length = text_length(text);
  if (count >= length) return std::string(text);
  return std::string(text.substr(offset_of(text, length - count)));
}

std::string text_less_last(std::string_view text) {
  if (text.empty()) throw RuntimeError(error_bad_call);
  const std::size_t length = text_length(text);
  return length == 0 ? std::string() : text_left(text, length - 1);
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return right_trimmed(text.substr(first));
}

std::string right_trimmed(std::string_view text) { return std::string(text.substr(0, text.find_last_not_of(' ') + 1)); }

std::string fixed_string(std::string_view text, std::size_t length) {
  std::string fixed = text_left(text, length);
  fixed.append(length - std::min(length, text_length(fixed)), ' ');
  return fixed;
}

std::string right_aligned(std::string_view text, std::size_t width) {
  std::string aligned(width - std::min(width, text_length(text)), ' ');
  return aligned.append(text);
}

std::string to_code_page(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += byte_of(take_character(utf8));
  return bytes;
}

std::string from_code_page(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    append_utf8(utf8, byte >= 0x80 && byte < 0xA0 ? upper_controls[byte - 0x80U] : byte);
  }
  return utf8;
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '\n') {
      result += "\\n";
      continue;
    }
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

}  // namespace trelvo
