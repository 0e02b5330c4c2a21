#include "document/trelvobas.h"

namespace trelvo {

trelvobas::trelvobas(Desktop& scrivania, const std::string& cartella)
    : desktop(scrivania),
      fileini(cartella),
      impost(scrivania.fonts()),
      TipoLinea(scrivania.fonts()),
      TipoSuperficie(scrivania.fonts()),
      Geststamp(scrivania.fonts()) {
  if (fileini.empty() || fileini.back() != '/') fileini += '/';
  fileini += "Trelvo.ini";
}

}  // namespace trelvo
