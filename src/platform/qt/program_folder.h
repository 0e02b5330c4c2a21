#pragma once

#include <string>

namespace trelvo {

// The program's folder: `wished` if it names one; that of the executable if the settings can be written there and the
// program is not installed for all users; otherwise the user's own under the desktop's configuration folder. Made when
// missing; CommandLineError if a wished one cannot be had.
std::string program_folder(const std::string& wished);

// The same with the executable's folder and the environment given. `config_home` and `home` may be empty.
std::string choose_folder(const std::string& wished, const std::string& executable, const std::string& config_home,
                          const std::string& home);

}  // namespace trelvo
