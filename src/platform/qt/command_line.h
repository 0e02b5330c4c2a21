// What the program was started with.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace trelvo {

struct CommandLine {
  std::string folder;   // empty: the program chooses
  std::string script;   // "-" for standard input; empty: the windows
  std::string file;     // absolute; empty: none
  bool report = false;  // the report editor alone; `file` is its document
  bool help = false;
  bool version = false;
};

// What was wrong, for the user.
class CommandLineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The arguments without the program's own name. CommandLineError for an option that is none, one that lacks its value,
// or more than one file.
CommandLine read_command_line(const std::vector<std::string>& arguments);

// Text of `--help`.
std::string usage();

}  // namespace trelvo
