// Any bytes as a report: sound, and the same again when saved and read back.
#include "harness.h"
#include "report/caricamento.h"
#include "report/descrizione.h"
#include "report/rtf_lettura.h"
#include "report/rtf_scrittura.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trelvo;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const relazione report = leggi_relazione(bytes);
  require(fault_of(report).empty(), "the report is sound");
  require(leggi_rtf(scrivi_rtf(report)) == report, "a saved report reads back the same");
  return 0;
}
