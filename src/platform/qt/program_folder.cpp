#include "platform/qt/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/qt/command_line.h"

namespace trelvo {

namespace {

namespace fs = std::filesystem;

bool can_hold_settings(const fs::path& folder) {
  const fs::path settings = folder / "Trelvo.ini";
  return access((fs::exists(settings) ? settings : folder).c_str(), W_OK) == 0;
}

// A program that is installed for all users keeps no settings beside itself, even where it could.
bool installed(const fs::path& folder) { return fs::exists(folder / "../share/applications/trelvo.desktop"); }

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace

std::string choose_folder(const std::string& wished, const std::string& executable, const std::string& config_home,
                          const std::string& home) {
  std::error_code error;
  if (!wished.empty()) {
    const fs::path folder = fs::absolute(wished);
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error)) throw CommandLineError(wished + " is no folder, and none can be made there");
    return folder.string();
  }
  if (!installed(executable) && can_hold_settings(executable)) {
    return executable;
  }
  // A relative configuration folder counts as none.
  const bool configured = !config_home.empty() && fs::path(config_home).is_absolute();
  const fs::path folder = (configured ? fs::path(config_home) : fs::path(home) / ".config") / "trelvo";
  // Where there is no place for it the settings are what cannot be written, and that is told.
  fs::create_directories(folder, error);
  return folder.string();
}

std::string program_folder(const std::string& wished) {
  std::error_code unknown;
  const fs::path executable = fs::canonical("/proc/self/exe", unknown).parent_path();
  return choose_folder(wished, executable.string(), variable("XDG_CONFIG_HOME"), variable("HOME"));
}

}  // namespace trelvo
