#include "report/formati.h"

#include <algorithm>

#include "platform/text.h"
#include "report/caratteri.h"

namespace trelvo {

std::string nome_di_carattere(const std::string& testo) {
  constexpr std::size_t massimo = 100;
  std::u32string nome;
  for (const char32_t c : ripulito(da_utf8(testo))) {
    const bool escluso = c < 0x20 || c == a_capo || c == carattere_ignoto;
    if (!escluso && nome.size() < massimo) nome += c == U';' ? U' ' : c;
  }
  return trimmed(in_utf8(nome));
}

formatoparagrafo con_punto(formatoparagrafo formato, int rientro) {
  if (formato.puntato) formato = senza_punto(formato);
  formato.puntato = true;
  formato.sinistro = std::min(formato.sinistro + rientro, scostamento_massimo);
  formato.primariga = -rientro;
  return formato;
}

formatoparagrafo senza_punto(formatoparagrafo formato) {
  if (!formato.puntato) return formato;
  formato.puntato = false;
  formato.sinistro = std::max(formato.sinistro + std::min(formato.primariga, 0), 0);
  formato.primariga = 0;
  return formato;
}

}  // namespace trelvo
