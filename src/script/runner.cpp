#include "script/runner.h"

#include <algorithm>
#include <memory>

#include "app/app.h"
#include "script/commands.h"
#include "script/failure.h"

namespace trelvo {

namespace {

const ScriptCommands& commands() {
  static const ScriptCommands all = [] {
    ScriptCommands table;
    add_user_commands(table);
    add_setup_commands(table);
    add_output_commands(table);
    return table;
  }();
  return all;
}

// A failure that already tells its line.
class FailedLine : public ScriptFailure {
 public:
  using ScriptFailure::ScriptFailure;
};

template <class Action>
void told_with_line(int number, Action&& action) {
  try {
    action();
  } catch (const FailedLine&) {
    throw;
  } catch (const ScriptFailure& failure) {
    throw FailedLine("line " + std::to_string(number) + ": " + failure.what());
  }
}

// The first word of a line, as far as it tells about blocks.
std::string_view first_word(std::string_view line) {
  const std::size_t begin = std::min(line.find_first_not_of(" \t"), line.size());
  line.remove_prefix(begin);
  return line.substr(0, line.find_first_of(" \t"));
}

void expect_count(const Arguments& arguments, std::size_t least, std::size_t most) {
  if (arguments.count() < least) throw ScriptFailure("\"" + arguments.command() + "\" wants more");
  if (arguments.count() > most) throw ScriptFailure("\"" + arguments.command() + "\" wants less");
}

}  // namespace

void Runner::run(std::istream& script) {
  int number = 0;
  const Source source = [&](ScriptLine& line) {
    while (std::getline(script, line.text)) {
      line.number = ++number;
      if (!line.text.empty() && line.text.back() == '\r') line.text.pop_back();
      if (!is_skipped(line.text)) return true;
    }
    return false;
  };

  ScriptLine line;
  bool more = source(line);
  bool used = false;
  told_with_line(line.number, [&] { start(line, used); });
  if (used) more = source(line);
  for (; more; more = source(line)) run_line(source, line);
}

void Runner::start(const ScriptLine& first, bool& used) {
  std::string file;
  if (first_word(first.text) == "start") {
    const Arguments arguments(first.text, split_words(first.text));
    expect_count(arguments, 1, 1);
    file = arguments.text(0);
    used = true;
  }
  evento(session_.bas, [&] { Main(session_.bas, file); });
}

void Runner::use_dialog(const Form& form) {
  const auto waiting =
      std::find_if(blocks_.begin(), blocks_.end(), [&](const Block& block) { return block.form == form.name; });
  if (waiting == blocks_.end()) return;
  const Block block = std::move(*waiting);
  blocks_.erase(waiting);

  std::size_t next = 0;
  const Source source = [&](ScriptLine& line) {
    if (next == block.lines.size()) return false;
    line = block.lines[next++];
    return true;
  };
  ScriptLine line;
  while (form.Visible && source(line)) run_line(source, line);
}

void Runner::run_line(const Source& source, const ScriptLine& line) {
  told_with_line(line.number, [&] {
    if (first_word(line.text) == "dialog") {
      keep_block(source, line, Arguments(line.text, split_words(line.text)));
    } else {
      execute(line.text);
    }
  });
}

void Runner::keep_block(const Source& source, const ScriptLine& head, const Arguments& arguments) {
  expect_count(arguments, 1, 1);
  Block block{arguments.text(0), {}};
  int depth = 1;
  ScriptLine line;
  while (source(line)) {
    const std::string_view word = first_word(line.text);
    if (word == "dialog") ++depth;
    if (word == "end" && --depth == 0) {
      blocks_.push_back(std::move(block));
      return;
    }
    block.lines.push_back(line);
  }
  throw FailedLine("line " + std::to_string(head.number) + ": \"dialog\" without its \"end\"");
}

void Runner::execute(std::string_view line) {
  std::vector<Word> words = split_words(line);
  if (words.empty()) throw ScriptFailure("no command");
  const Arguments arguments(line, std::move(words));
  if (arguments.command() == "repeat") {
    expect_count(arguments, 2, any_number);
    const std::string repeated = arguments.rest(1);
    for (int times = arguments.integer(0); times > 0; --times) execute(repeated);
    return;
  }
  const auto command = commands().find(arguments.command());
  if (command == commands().end()) throw ScriptFailure("unknown command \"" + arguments.command() + "\"");
  expect_count(arguments, command->second.least, command->second.most);
  command->second.run(session_, arguments);
}

}  // namespace trelvo
