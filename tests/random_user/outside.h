// What others do to the files of a program while it runs: lines that a script takes for remarks.
#pragma once

#include <filesystem>
#include <string>

namespace trelvo {

// A folder that comes and goes.
constexpr const char* fleeting_folder = "effimera";
constexpr const char* folder_comes = "# mkdir effimera";
constexpr const char* folder_goes = "# rm -r effimera";

inline void happen_outside(const std::string& line) {
  std::error_code ignored;
  if (line == folder_comes) std::filesystem::create_directory(fleeting_folder, ignored);
  if (line == folder_goes) std::filesystem::remove_all(fleeting_folder, ignored);
}

}  // namespace trelvo
