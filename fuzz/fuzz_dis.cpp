// Any bytes as a drawing file: opened, painted, saved, reopened.
#include "harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trelvo;
  const std::string path = scratch_file("input.DIS");
  write_bytes(path, data, size);
  FuzzProgram program;
  program.open(path);
  if (program.bas.attivo() != nullptr) require_stable_save(program);
  return 0;
}
