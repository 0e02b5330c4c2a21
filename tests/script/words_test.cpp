#include "script/words.h"

#include <gtest/gtest.h>

#include "script/failure.h"

namespace trelvo {
namespace {

std::string joined(std::string_view line) {
  std::string out;
  for (const Word& word : split_words(line)) out += (word.quoted ? "q:" : "w:") + word.text + "|";
  return out;
}

TEST(Words, Split) {
  struct {
    const char* line;
    const char* words;
  } const cases[] = {
      {"", ""},
      {"  left 10\t-2.5  ", "w:left|w:10|w:-2.5|"},
      {R"(file "a b.DIS")", "w:file|q:a b.DIS|"},
      {R"(echo "a \"b\" \\ c\nd" "")", "w:echo|q:a \"b\" \\ c\nd|q:|"},
      {R"(set a"b c)", "w:set|w:a\"b|w:c|"},
      {"type X \"Proprietà\" # 1", "w:type|w:X|q:Proprietà|w:#|w:1|"},
  };
  for (const auto& c : cases) EXPECT_EQ(joined(c.line), c.words) << c.line;
  for (const char* bad : {R"(a "b)", R"(a "b\)", R"(a "\t")", R"("a"b)"}) {
    EXPECT_THROW(split_words(bad), ScriptFailure) << bad;
  }
}

TEST(Words, Skipped) {
  for (const char* line : {"", "  \t", "# x", "  # x"}) EXPECT_TRUE(is_skipped(line)) << line;
  for (const char* line : {"a", " a # x", "\"#\""}) EXPECT_FALSE(is_skipped(line)) << line;
}

TEST(Words, Numbers) {
  struct {
    const char* text;
    bool number;
    bool integer;
  } const cases[] = {{"5", true, true},     {"-5", true, true},     {"+5", true, true},          {"1.5", true, false},
                     {".5", true, false},   {"1e3", true, false},   {"1,5", false, false},       {"", false, false},
                     {"+-5", false, false}, {"5 ", false, false},   {"nan", false, false},       {"inf", false, false},
                     {"+", false, false},   {"0x10", false, false}, {"99999999999", true, false}};
  for (const auto& c : cases) {
    double number = 0;
    int integer = 0;
    EXPECT_EQ(read_number(c.text, number), c.number) << c.text;
    EXPECT_EQ(read_integer(c.text, integer), c.integer) << c.text;
  }
}

TEST(Words, RestKeepsQuotationsAndBlanks) {
  const std::string line = R"(repeat 3  echo "a  b"  c)";
  const Arguments arguments(line, split_words(line));
  EXPECT_EQ(arguments.integer(0), 3);
  EXPECT_EQ(arguments.rest(1), R"(echo "a  b"  c)");
}

}  // namespace
}  // namespace trelvo
