// Texts are UTF-8; lengths and positions count characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trelvo {

std::size_t text_length(std::string_view text);
std::string text_left(std::string_view text, std::size_t count);
std::string text_right(std::string_view text, std::size_t count);
// Without its last character. Error 5 for an empty text.
std::string text_less_last(std::string_view text);
// Blanks cut at both ends, or at the right.
std::string trimmed(std::string_view text);
std::string right_trimmed(std::string_view text);
// Cut or padded with blanks at the right to `length` characters.
std::string fixed_string(std::string_view text, std::size_t length);
// "@@@@@@@@@@": right-aligned in ten characters, longer text whole.
std::string right_aligned(std::string_view text, std::size_t width = 10);

// Windows-1252; a character that it lacks becomes '?'. Bytes without a character keep their code.
std::string to_code_page(std::string_view utf8);
std::string from_code_page(std::string_view bytes);

// In double quotes, with \" \\ \n for those characters.
std::string quoted(std::string_view text);

}  // namespace trelvo
