// A user without a plan: the lines of a script, made one step at a time from what the program shows.
#pragma once

#include <deque>
#include <map>
#include <string>

#include "random_user/dice.h"
#include "random_user/report_lines.h"
#include "script/session.h"

namespace trelvo {

class RandomLines {
 public:
  RandomLines(Session& session, std::uint64_t seed) : session_(session), dice_(seed) {}

  // The next thing that the user does: one line, or several of which only the last one acts.
  std::deque<std::string> next_step();
  // The lines given ahead for a form are taken when it is shown.
  void shown(const std::string& form);

  // A file of this name is made by the session and by nothing else.
  static std::string saved_name(int number) { return "salvato" + std::to_string(number) + ".DIS"; }

 private:
  using Lines = std::deque<std::string>;

  void say(std::string line) { lines_.push_back(std::move(line)); }
  void answers_ahead();
  void dialog(const std::string& form, const Lines& lines);

  void choose_document();
  void choose_command();
  void point();
  void finish();
  void edit();
  void look();
  void adjust();
  void use_files();
  void any_key();

  void go_elsewhere();
  void any_tool();
  void look_at_dialog();
  void print_to_file();
  void use_fleeting_folder();
  void keep_report();

  std::string number();
  std::string coordinate();
  std::string typed();
  std::string file_name();
  std::string color();
  Lines dialog_lines(const std::string& form);
  Lines line_lines();
  Lines surface_lines();
  Lines text_lines();
  Lines print_lines();
  Lines settings_lines();
  Lines color_lines();
  Lines vertex_lines();
  Lines percent_lines();
  void vertex_buttons(const std::string& form, Lines& lines);
  int rows_of_selection(const std::string& form) const;

  Session& session_;
  Dice dice_;
  ReportLines report_{session_, dice_};
  Lines lines_;
  std::map<std::string, int> waiting_;  // blocks of lines given for a form and not yet taken
  bool confirms_ = false;               // the step at hand shows the properties of what is selected
  int saved_ = 0;
};

}  // namespace trelvo
