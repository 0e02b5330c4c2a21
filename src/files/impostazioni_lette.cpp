#include "files/impostazioni_lette.h"

#include "commands/impostazioni.h"
#include "document/trelvobas.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr int indice_contrasto = 3;
constexpr int indice_contrasto_di_contrasto = 15;
constexpr int voce_step = 4;
constexpr int voce_griglia = 5;

// Leaves the item as the file has the aid, by way of the switch, which sets all that hangs on it.
void commuta_aiuto(distipo& doc, int voce, bool attivo, errorerimandato& errore) {
  doc.aiutdis(voce).Checked = !attivo;
  errore.prova([&] { impaiut(doc, voce); });
}

}  // namespace

void prendi_impostazioni(distipo& doc, const impostazionilette& lette, errorerimandato& errore) {
  impostazioni& imp = doc.imp;
  imp.coloresfondo = lette.coloresfondo;
  imp.colorecontrasto =
      indicecolore{lette.coloresfondo.valore == indice_contrasto ? indice_contrasto_di_contrasto : indice_contrasto};
  imp.colorepuntatore = lette.colorepuntatore;
  imp.statostep = lette.statostep;
  imp.passostep = lette.passostep;
  imp.statogriglia = lette.statogriglia;
  imp.passogriglia = lette.passogriglia;
  commuta_aiuto(doc, voce_step, lette.statostep == acceso, errore);
  commuta_aiuto(doc, voce_griglia, lette.statogriglia == acceso, errore);
}

void rimetti_impostazioni(distipo& doc, const impostazioni& prima, errorerimandato& errore) {
  doc.imp = prima;
  doc.aiutdis(voce_step).Checked = prima.step();
  doc.aiutdis(voce_griglia).Checked = prima.griglia();
  mostra_interruttori(doc);
  errore.prova([&] { redraw(doc); });
  errore.prova([&] { doc.bas.salvafileini_dis(doc); });
}

}  // namespace trelvo
