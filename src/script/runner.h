// Runs the lines of a script: reading, repeating, and keeping the lines of dialogs until those are shown.
#pragma once

#include <deque>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "script/session.h"
#include "script/words.h"

namespace trelvo {

struct ScriptLine {
  int number = 0;
  std::string text;
};

class Runner {
 public:
  explicit Runner(Session& session) : session_(session) {}
  Runner(const Runner&) = delete;
  Runner& operator=(const Runner&) = delete;

  // The program starts with the first line. Fails with the number of the line and the reason.
  void run(std::istream& script);
  // Runs the lines that wait for a form, while it is open.
  void use_dialog(const Form& form);

 private:
  // False at the end.
  using Source = std::function<bool(ScriptLine&)>;
  struct Block {
    std::string form;
    std::vector<ScriptLine> lines;
  };

  void start(const ScriptLine& first, bool& used);
  void run_line(const Source& source, const ScriptLine& line);
  void keep_block(const Source& source, const ScriptLine& head, const Arguments& arguments);
  void execute(std::string_view line);

  Session& session_;
  std::deque<Block> blocks_;
};

}  // namespace trelvo
