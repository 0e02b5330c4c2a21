#include "files/txt_righe.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/runtime_error.h"

namespace trelvo {
namespace {

righetxt lines_of(const std::string& text) {
  return righetxt([text, read = std::size_t{0}](std::span<std::byte> to) mutable {
    const std::size_t n = std::min(to.size(), text.size() - read);
    std::copy_n(reinterpret_cast<const std::byte*>(text.data()) + read, n, to.begin());
    read += n;
    return n;
  });
}

std::string joined(righetxt lines) {
  std::string all;
  std::string_view line;
  while (lines.avanza(line)) all += std::string(line) + '|';
  return all;
}

TEST(TxtRighe, LineEnds) {
  const struct {
    const char* text;
    const char* lines;
  } cases[] = {
      {"", ""},
      {"\n", "|"},
      {"a", "a|"},
      {"a\n", "a|"},
      {"a\r\nb\nc\rd\r", "a|b|c|d|"},
      {"a\r\n\r\n\n\r\rb", "a|||||b|"},
      {"\n\r\n", "||"},
      {" a\tb\f ", " a\tb\f |"},
  };
  for (const auto& c : cases) EXPECT_EQ(joined(lines_of(c.text)), c.lines) << c.text;
}

// Lines and their ends fall on every place about the border of a block.
TEST(TxtRighe, LongLinesAndBorders) {
  constexpr std::size_t block = std::size_t{1} << 18;
  for (const char* end : {"\n", "\r", "\r\n"}) {
    for (std::size_t length = block - 3; length < block + 3; ++length) {
      const std::string first(length, 'a');
      const std::string second(3 * block, 'b');
      EXPECT_EQ(joined(lines_of(first + end + "c" + end + second + end)), first + "|c|" + second + "|");
    }
  }
}

TEST(TxtRighe, ValuesPartedByCommasAndLineEnds) {
  const struct {
    const char* text;
    int wanted;
    const char* values;
    const char* rest;
  } cases[] = {
      {"1\n2\n3\nx\n", 3, "1|2|3|", "x|"},
      {"1,2\n3,x\ny", 3, "1|2|3|", "x|y|"},
      {" 1 , \"O N\" ,\"a,b\" z\nx", 3, "1|O N|a,b|", "x|"},
      {"1,\n\n2\n", 4, "1|||2|", ""},
      {"\"open\n1", 2, "open|1|", ""},
      {"1,2,,\n", 4, "1|2|||", ""},
      {"1,2,Linea", 2, "1|2|", "Linea|"},
      {"1,2,", 3, "1|2|error", ""},
      {"1\n", 2, "1|error", ""},
      {"", 1, "error", ""},
  };
  for (const auto& c : cases) {
    righetxt lines = lines_of(c.text);
    std::string values;
    try {
      for (int i = 0; i < c.wanted; ++i) values += lines.valore() + '|';
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), error_past_end);
      values += "error";
    }
    EXPECT_EQ(values, c.values) << c.text;
    EXPECT_EQ(joined(std::move(lines)), c.rest) << c.text;
  }
}

}  // namespace
}  // namespace trelvo
