#include "report/caricamento.h"

#include "platform/text.h"
#include "report/caratteri.h"
#include "report/rtf_lettura.h"

namespace trelvo {

relazione leggi_relazione(std::string_view dati) {
  if (e_rtf(dati)) return leggi_rtf(dati);
  if (dati.starts_with("\xEF\xBB\xBF")) dati.remove_prefix(3);
  const std::u32string testo = utf8_valido(dati) ? da_utf8(dati) : da_utf8(from_code_page(dati));
  relazione letta;
  letta.aggiungi(ripulito(testo), {});
  return letta;
}

}  // namespace trelvo
