#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"

namespace trelvo {
namespace {

TEST(Text, CountsCharacters) {
  EXPECT_EQ(text_length("Proprietà Oggetto"), 17U);
  EXPECT_EQ(text_length(""), 0U);
  EXPECT_EQ(text_length("a€𝄞"), 3U);
}

TEST(Text, PartsNeverCutACharacter) {
  struct Row {
    const char* text;
    std::size_t count;
    const char* left;
    const char* right;
  };
  const Row rows[] = {
      {"Proprietà", 9, "Proprietà", "Proprietà"},
      {"Proprietà", 8, "Propriet", "roprietà"},
      {"àèì", 1, "à", "ì"},
      {"àèì", 0, "", ""},
      {"àèì", 99, "àèì", "àèì"},
      {"", 3, "", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(text_left(row.text, row.count), row.left) << row.text << ' ' << row.count;
    EXPECT_EQ(text_right(row.text, row.count), row.right) << row.text << ' ' << row.count;
  }
}

TEST(Text, LosesItsLastCharacter) {
  EXPECT_EQ(text_less_last("12,5"), "12,");
  EXPECT_EQ(text_less_last("unità"), "unit");
  EXPECT_EQ(text_less_last("\x80"), "");
  try {
    text_less_last("");
    FAIL() << "an empty text has no last character";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 5);
  }
}

TEST(Text, TrimsBlanksOnly) {
  EXPECT_EQ(trimmed("  Linea \t "), "Linea \t");
  EXPECT_EQ(trimmed("   "), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(right_trimmed("  Linea  "), "  Linea");
  EXPECT_EQ(right_trimmed("   "), "");
}

TEST(Text, FixedAndAlignedLengthsCountCharacters) {
  EXPECT_EQ(fixed_string("unità", 7), "unità  ");
  EXPECT_EQ(fixed_string("unità", 5), "unità");
  EXPECT_EQ(fixed_string("unità", 2), "un");
  EXPECT_EQ(right_aligned("città"), "     città");
  EXPECT_EQ(right_aligned("dodici lettere"), "dodici lettere");
}

TEST(Text, CodePageHoldsItsCharactersAndNoOther) {
  struct Row {
    const char* utf8;
    const char* bytes;
  };
  const Row rows[] = {
      {"Proprietà", "Propriet\xE0"},
      {"€ 5", "\x80 5"},
      {"“Ÿ”", "\x93\x9F\x94"},
      {"ΩxЖ", "?x?"},
      {"𝄞", "?"},
      {"\xC2\x80", "?"},
      {"\xC3", "?"},
      {"a\xE0z", "a?z"},
      {"\xC0\xAF", "??"},
      {"\xED\xA0\x80", "???"},
      {"\xF4\x90\x80\x80", "????"},
  };
  for (const Row& row : rows) EXPECT_EQ(to_code_page(row.utf8), row.bytes) << row.utf8;
}

TEST(Text, EveryByteSurvivesTheRoundTrip) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  const std::string utf8 = from_code_page(bytes);
  EXPECT_EQ(text_length(utf8), 256U);
  EXPECT_EQ(to_code_page(utf8), bytes);
}

TEST(Text, QuotesEscapeThreeCharacters) {
  EXPECT_EQ(quoted("a\"b\\c\nd"), "\"a\\\"b\\\\c\\nd\"");
  EXPECT_EQ(quoted(""), "\"\"");
}

TEST(RuntimeErrors, CarryTheirText) {
  EXPECT_EQ(RuntimeError(13).text(), "Tipo non corrispondente");
  EXPECT_EQ(RuntimeError(55).text(), "File già aperto");
  EXPECT_EQ(RuntimeError(53, "a.DIS").text(), "File non trovato (a.DIS)");
  EXPECT_STREQ(RuntimeError(482).what(), "Errore della stampante");
  EXPECT_FALSE(RuntimeError(9999).text().empty());
}

}  // namespace
}  // namespace trelvo
