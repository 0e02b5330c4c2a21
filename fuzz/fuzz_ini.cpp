// Any bytes as the settings file: read by a new document, used, and written to something that reads the same.
#include "harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trelvo;
  FuzzProgram program;
  write_bytes(program.bas.fileini, data, size);
  program.event([&] { scegli(program.bas.frmMain.gestfile(1)); });
  distipo& doc = program.document();
  program.event([&] { program.bas.salvafileini_dis(doc); });
  const std::string first = read_bytes(program.bas.fileini);
  program.event([&] { scegli(program.bas.frmMain.gestfile(1)); });
  program.event([&] { program.bas.salvafileini_dis(program.document()); });
  require(read_bytes(program.bas.fileini) == first, "settings read back are written the same");
  for (int item : {1, 4, 5, 6, 7}) program.event([&] { scegli(program.document().aiutdis(item)); });
  for (int item : {0, 2, 3, 4, 6}) program.event([&] { scegli(program.document().filtri(item)); });
  std::filesystem::remove(program.bas.fileini);
  return 0;
}
