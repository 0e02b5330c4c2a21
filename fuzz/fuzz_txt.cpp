// Any bytes as a text drawing: imported under both kinds of regional settings, saved, reopened, exported.
#include "harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trelvo;
  if (size == 0) return 0;
  const std::string path = scratch_file("input.txt");
  write_bytes(path, data + 1, size - 1);
  FuzzProgram program;
  program.desktop.regional_format = data[0] % 2 == 0 ? RegionalFormat{",", "."} : RegionalFormat{".", ","};
  program.open(path);
  require(!program.bas.barprog.loaded(), "no progress window stays");
  if (program.bas.attivo() == nullptr) return 0;
  const std::string exported = scratch_file("output.DXF");
  std::filesystem::remove(exported);
  program.desktop.files.push_back(exported);
  program.event([&] { scegli(program.document().mnudxf); });
  require(std::filesystem::exists(exported), "the export is written");
  require_stable_save(program);
  return 0;
}
