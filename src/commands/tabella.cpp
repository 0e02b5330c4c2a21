#include <algorithm>

#include "commands/comandi_disegno.h"
#include "commands/comandi_modifica.h"
#include "commands/comandi_zoom.h"
#include "commands/comando.h"

namespace trelvo {

void aggiungi_comandi(trelvobas& bas) {
  for (const auto& righe : {comandi_disegno(), comandi_zoom(), comandi_modifica()}) {
    for (const comando& riga : righe) bas.tabella.righe.push_back(std::make_shared<const comando>(riga));
  }
}

const comando* trova_comando(const trelvobas& bas, const std::string& nome) {
  if (nome.empty()) return nullptr;
  const auto& righe = bas.tabella.righe;
  const auto trovata = std::find_if(righe.begin(), righe.end(), [&](const auto& riga) { return riga->nome == nome; });
  return trovata == righe.end() ? nullptr : trovata->get();
}

const comando* comando_corrente(const distipo& doc) { return trova_comando(doc.bas, doc.cmd.comando()); }

}  // namespace trelvo
