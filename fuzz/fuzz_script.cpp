// Any text as a script; the drawing that it leaves is saved and reopened.
#include <sstream>
#include <string_view>

#include "harness.h"
#include "script/failure.h"
#include "script/machine.h"

namespace {

using namespace trelvo;

// An item of the active document's file menu, with the answers it needs.
void use_file(Machine& machine, const std::string& name, int item) {
  machine.desktop.answers = {};
  machine.desktop.answers.files.emplace_back(name);
  evento(machine.bas, [&] { scegli(machine.bas.attivo()->opfile(item)); });
}

void require_stable_drawing(Machine& machine) {
  const std::string first = scratch_file("first.DIS");
  const std::string second = scratch_file("second.DIS");
  for (const std::string& name : {first, second}) std::filesystem::remove(name);
  constexpr int open = 2;
  constexpr int save_as = 4;
  use_file(machine, first, save_as);
  if (!std::filesystem::exists(first)) return;
  use_file(machine, first, open);
  require(machine.bas.attivo()->Caption.get() == first, "a saved drawing opens");
  use_file(machine, second, save_as);
  if (std::filesystem::exists(second)) {
    require(records_of(first) == records_of(second), "a reopened drawing has the same objects");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
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
  Machine machine(output, scratch_folder(), fonts);
  try {
    machine.runner.run(lines);
  } catch (const ScriptFailure& failure) {
    require(*failure.what() != '\0', "a script ends well or tells why not");
  }
  if (machine.bas.attivo() != nullptr) require_stable_drawing(machine);
  return 0;
}
