// Any text as a script.
#include <sstream>
#include <string_view>

#include "harness.h"
#include "script/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trelvo;
  const std::string text(reinterpret_cast<const char*>(data), size);
  // Files stay in the scratch folder, and work that is asked for many times over is no fault of the program.
  if (text.find('/') != std::string::npos || text.find("..") != std::string::npos) return 0;
  if (text.find("repeat") != std::string::npos) return 0;
  static const bool moved = [] {
    std::filesystem::current_path(scratch_folder());
    return true;
  }();
  require(moved, "the scratch folder is there");
  FakeFonts fonts;
  std::istringstream lines(text);
  std::ostringstream output;
  std::ostringstream errors;
  const int status = esegui_script(lines, output, errors, scratch_folder(), fonts);
  require(status == 0 || (status == 1 && !errors.str().empty()), "a script ends well or tells why not");
  return 0;
}
