#include "script/words.h"

#include <charconv>
#include <cmath>
#include <utility>

#include "script/failure.h"

namespace trelvo {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }

// `at` stands behind the opening quotation mark, and is left behind the closing one.
std::string quoted_part(std::string_view line, std::size_t& at) {
  std::string text;
  while (at < line.size() && line[at] != '"') {
    char c = line[at++];
    if (c == '\\') {
      if (at == line.size()) break;
      c = line[at++];
      if (c == 'n') {
        c = '\n';
      } else if (c != '"' && c != '\\') {
        throw ScriptFailure(std::string("unknown escape \\") + c);
      }
    }
    text += c;
  }
  if (at == line.size()) throw ScriptFailure("quotation without its end");
  ++at;
  if (at < line.size() && !is_blank(line[at])) throw ScriptFailure("no blank behind a quotation");
  return text;
}

template <class Number>
bool read_whole(std::string_view text, Number& number) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size();
}

}  // namespace

std::vector<Word> split_words(std::string_view line) {
  std::vector<Word> words;
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && is_blank(line[at])) ++at;
    if (at == line.size()) return words;
    const std::size_t begin = at;
    if (line[at] == '"') {
      std::string text = quoted_part(line, ++at);
      words.push_back({std::move(text), true, begin});
    } else {
      while (at < line.size() && !is_blank(line[at])) ++at;
      words.push_back({std::string(line.substr(begin, at - begin)), false, begin});
    }
  }
}

bool is_skipped(std::string_view line) {
  const std::size_t first = line.find_first_not_of(" \t");
  return first == std::string_view::npos || line[first] == '#';
}

Arguments::Arguments(std::string_view line, std::vector<Word> words) : line_(line), words_(std::move(words)) {}

double Arguments::number(std::size_t i) const {
  double value = 0;
  if (!read_number(text(i), value)) throw ScriptFailure("\"" + text(i) + "\" is no number");
  return value;
}

int Arguments::integer(std::size_t i) const {
  int value = 0;
  if (!read_integer(text(i), value)) throw ScriptFailure("\"" + text(i) + "\" is no whole number");
  return value;
}

std::string Arguments::rest(std::size_t i) const { return std::string(line_.substr(words_[i + 1].begin)); }

bool read_number(std::string_view text, double& number) { return read_whole(text, number) && std::isfinite(number); }

bool read_integer(std::string_view text, int& number) { return read_whole(text, number); }

}  // namespace trelvo
