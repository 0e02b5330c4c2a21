#include "app/perduti.h"

#include <algorithm>

#include "app/app.h"
#include "app/barre.h"
#include "app/file.h"
#include "commands/comando.h"
#include "files/comandi_file.h"
#include "files/dis_documento.h"
#include "files/recupero.h"

namespace trelvo {

namespace {

distipo* aperto(const trelvobas& bas, const std::string& nome) {
  const auto trovato = std::find_if(bas.ordine.begin(), bas.ordine.end(),
                                    [&](const distipo* doc) { return doc->Caption.get() == nome; });
  return trovato == bas.ordine.end() ? nullptr : *trovato;
}

// Whether the name is free for the drawing. Its file as it was saved gives way, if nothing was done to it yet.
bool libera_nome(trelvobas& bas, const std::string& nome) {
  if (senza_nome(nome)) return false;
  distipo* salvato = aperto(bas, nome);
  return salvato == nullptr || (salvato->cmd.modificato != 1 && chiudi(*salvato));
}

}  // namespace

std::vector<disegnoperduto> perduti_da_offrire(const trelvobas& bas, const copieaperte& copie) {
  std::vector<disegnoperduto> perduti = copie.perduti();
  // Whoever opens a drawing with a later copy beside it is asked then.
  std::erase_if(perduti, [&](const disegnoperduto& p) { return p.copia.empty() && aperto(bas, p.nome) != nullptr; });
  return perduti;
}

void riapri_perduto(trelvobas& bas, copieaperte& copie, const disegnoperduto& perduto) {
  const std::string sorgente = perduto.copia.empty() ? copia_recuperabile(perduto.nome) : perduto.copia;
  const bool proprio_nome = libera_nome(bas, perduto.nome);
  if (bas.ndocumenti == 0) attivabarre(bas);
  nuovodisegno(bas);
  distipo& doc = *bas.attivo();
  if (proprio_nome) registra_nome(doc, perduto.nome);
  leggifile(doc, sorgente);
  if (proprio_nome && !perduto.copia.empty()) doc.impronta = perduto.impronta;
  copie.aggiorna(bas);
  // What is left of a full disk may not take another copy.
  if (copie.al_sicuro(doc)) copieaperte::dimentica(perduto);
}

}  // namespace trelvo
