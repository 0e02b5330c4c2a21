#include "random_user/report_reopening.h"

#include <filesystem>

#include "report/descrizione.h"

namespace trelvo {

std::deque<std::string> ReportReopening::after(const std::deque<std::string>& step) {
  if (!session_.report_open() || step.size() < 2 || step.back() != "menu videoscritt.file 4") return {};
  const videoscritt& report = *session_.relazione;
  const std::string& name = report.nomedocumento;
  // A failed save leaves the mark of a change: there is nothing whole to read.
  const bool own = name.starts_with("salvata") && step[step.size() - 2] == "file \"" + name + "\"";
  if (!own || report.testomodificato != 0) return {};
  name_ = name;
  kept_ = report.RichTextBox1.documento();
  return {"file \"" + name + "\"", "menu videoscritt.file 2"};
}

std::string ReportReopening::compared(int& equal) {
  if (name_.empty()) return {};
  const std::string name = std::move(name_);
  name_.clear();
  std::error_code ignored;
  std::filesystem::remove(name, ignored);
  if (!session_.report_open() || session_.relazione->nomedocumento != name)
    return "a saved report does not open: " + name;
  const relazione& read = session_.relazione->RichTextBox1.documento();
  if (read != kept_) return "a saved report differs:\n" + described(kept_) + "\n" + described(read);
  ++equal;
  return {};
}

}  // namespace trelvo
