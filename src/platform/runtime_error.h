// The system's run-time errors. They end the running event, are shown to the user, and leave the program running.
#pragma once

#include <exception>
#include <string>

namespace trelvo {

class RuntimeError : public std::exception {
 public:
  // The text is the system's own for the number, followed by `detail` in brackets if there is one.
  explicit RuntimeError(int number, const std::string& detail = {});
  int number() const { return number_; }
  const std::string& text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  int number_;
  std::string text_;
};

enum RuntimeErrorNumber {
  error_bad_call = 5,
  error_overflow = 6,
  error_no_memory = 7,
  error_bad_index = 9,
  error_division = 11,
  error_type = 13,
  error_file_name = 52,
  error_file_not_found = 53,
  error_file_open = 55,
  error_device_io = 57,
  error_disk_full = 61,
  error_past_end = 62,
  error_permission = 70,
  error_path_access = 75,
  error_path_not_found = 76,
  error_printer = 482,
};

}  // namespace trelvo
