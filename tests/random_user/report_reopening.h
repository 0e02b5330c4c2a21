// A report that the user has just saved: it is read again and compared.
#pragma once

#include <deque>
#include <string>

#include "script/session.h"

namespace trelvo {

class ReportReopening {
 public:
  explicit ReportReopening(const Session& session) : session_(session) {}

  // A file of this name is made by the session and by nothing else.
  static std::string saved_name(int number) { return "salvata" + std::to_string(number) + ".rtf"; }

  // The lines that read the report again, if the step saved one under a name of its own.
  std::deque<std::string> after(const std::deque<std::string>& step);
  // What differs between the report and the one that was read; one more of the equal ones if nothing does.
  std::string compared(int& equal);

 private:
  const Session& session_;
  std::string name_;  // empty: nothing to compare
  relazione kept_;
};

}  // namespace trelvo
