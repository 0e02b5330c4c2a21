// What a user without a plan does in the report editor.
#pragma once

#include <deque>
#include <string>

#include "random_user/dice.h"
#include "script/session.h"

namespace trelvo {

class ReportLines {
 public:
  ReportLines(const Session& session, Dice& dice) : session_(session), dice_(dice) {}

  // The lines of one step; it brings the editor up if it is not there.
  std::deque<std::string> next_step();

 private:
  void say(std::string line) { lines_.push_back(std::move(line)); }
  void set(const std::string& property, const std::string& value);
  void write();
  void select();
  void format();
  void paragraphs();
  void use_dialog();
  void use_files();
  std::string words();
  std::string number(int low, int high) { return std::to_string(dice_.number(low, high)); }
  std::string file_name();

  const Session& session_;
  Dice& dice_;
  std::deque<std::string> lines_;
};

// What does not hold of the report, empty if all does: it is sound, and a save and a reading keep it.
class ReportInvariants {
 public:
  std::string broken(const Session& session);

 private:
  relazione kept_;  // the last one that was found to be
};

}  // namespace trelvo
