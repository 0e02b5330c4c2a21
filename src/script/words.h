// A line of a script as words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelvo {

struct Word {
  std::string text;
  bool quoted = false;
  std::size_t begin = 0;  // where it stands in the line, quotation mark included
};

// Words are parted by blanks; one in double quotes may hold blanks, with \" \\ \n inside. Fails on an open quotation,
// on another escape, and on a quotation that runs on without a blank.
std::vector<Word> split_words(std::string_view line);

// Blank, or a comment.
bool is_skipped(std::string_view line);

// The command word and what follows it. Each reader fails with a reason for what it cannot read.
class Arguments {
 public:
  Arguments(std::string_view line, std::vector<Word> words);

  const std::string& command() const { return words_.front().text; }
  // Without the command word.
  std::size_t count() const { return words_.size() - 1; }
  const std::string& text(std::size_t i) const { return words_[i + 1].text; }
  bool quoted(std::size_t i) const { return words_[i + 1].quoted; }
  // The unquoted word itself.
  bool is(std::size_t i, std::string_view word) const { return !quoted(i) && text(i) == word; }
  double number(std::size_t i) const;
  int integer(std::size_t i) const;
  // The line from that argument on.
  std::string rest(std::size_t i) const;

 private:
  std::string_view line_;
  std::vector<Word> words_;
};

// With a point, nothing else around.
bool read_number(std::string_view text, double& number);
bool read_integer(std::string_view text, int& number);

}  // namespace trelvo
