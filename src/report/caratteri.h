// The characters of a report: one code a character, so that positions count characters.
#pragma once

#include <string>
#include <string_view>

namespace trelvo {

constexpr char32_t fine_paragrafo = U'\n';
// A new line within a paragraph.
constexpr char32_t a_capo = 0x2028;
constexpr char32_t carattere_ignoto = 0xFFFD;

// What is no UTF-8 becomes the unknown character, byte by byte.
std::u32string da_utf8(std::string_view testo);
std::string in_utf8(std::u32string_view testo);
bool utf8_valido(std::string_view testo);

// Paragraphs end in '\n' alone, and no character is left that a report does not have: other control characters,
// halves of pairs and codes that stand for no character become the unknown one.
std::u32string ripulito(std::u32string_view testo);

// The small letter of a capital one: Latin, Greek, Cyrillic.
char32_t minuscola(char32_t c);

}  // namespace trelvo
