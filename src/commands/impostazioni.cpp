#include "commands/impostazioni.h"

#include "commands/impost.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr int colore_testo_iniziale = 0;
constexpr int colore_opaco_iniziale = 15;

constexpr int voce_generali = 1;
constexpr int voce_step = 4;
constexpr int voce_griglia = 5;
constexpr int voce_orto = 6;
constexpr int colore_acceso = 0;
constexpr int colore_spento = 8;

void mostra(Label& interruttore, bool stato, const std::string& suggerimento) {
  interruttore.ForeColor = tavolozza(stato ? colore_acceso : colore_spento);
  interruttore.ToolTipText = stato ? suggerimento : "[ OFF ]";
}

// "[ON] :", the pitch with its leading blank, a blank.
std::string suggerimento_passo(float passo) { return "[ON] :" + number_text(passo) + " "; }

const char* seguito_rifiuto(int indice, bool spunta) {
  if (indice == voce_generali) return " modificare le impostazioni generali.";
  if (indice == voce_griglia) return spunta ? " disattivare la griglia." : " attivare la griglia.";
  return spunta ? " disattivare visualizzazione bordo testo." : " attivare visualizzazione bordo testo.";
}

// Settings that repaint wait until the running command is over.
bool rifiutata(distipo& doc, int indice) {
  if (indice != voce_generali && indice != voce_griglia && indice != voce_bordo) return false;
  const std::string& nome = doc.cmd.comando();
  if (nome.empty()) return false;
  doc.bas.desktop.beep();
  doc.bas.desktop.message_box(
      "Completare il comando \"" + nome + "\" prima di" + seguito_rifiuto(indice, doc.aiutdis(indice).Checked),
      Buttons::ok);
  return true;
}

void commuta(distipo& doc, int indice) {
  MenuItem& voce = doc.aiutdis(indice);
  const bool accendi = !voce.Checked;
  voce.Checked = accendi;
  impostazioni& imp = doc.imp;
  const char* stato = accendi ? acceso : spento;
  if (indice == voce_step) {
    imp.statostep = stato;
    if (accendi && imp.passostep == 0) imp.passostep = 1;
  } else if (indice == voce_griglia) {
    imp.statogriglia = stato;
  } else if (indice == voce_orto) {
    imp.statoorto = stato;
  } else {
    imp.bordotesto = accendi ? 1 : 0;
  }
  mostra_interruttori(doc);
  if (indice == voce_griglia || indice == voce_bordo) redraw(doc);
}

}  // namespace

void impaiut(distipo& doc, int indice) {
  const bool interruttore = indice >= voce_step && indice <= voce_bordo;
  if ((!interruttore && indice != voce_generali) || rifiutata(doc, indice)) return;
  if (interruttore) {
    commuta(doc, indice);
  } else {
    mostra_impost(doc);
  }
  doc.bas.salvafileini_dis(doc);
}

void mostra_interruttori(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  mostra(f.Label8, doc.imp.step(), suggerimento_passo(doc.imp.passostep));
  mostra(f.Label9, doc.imp.griglia(), suggerimento_passo(doc.imp.passogriglia));
  mostra(f.Label10, doc.imp.orto(), "[ON]");
}

void impfiltri(distipo& doc, int valore) {
  doc.filtro.filtroattivo = valore;
  for (int i = 0; i <= 6; ++i) {
    MenuItem& voce = doc.filtri(i);
    const bool scelta = i == valore && i != 1 && i != 5;
    voce.Checked = scelta;
    if (scelta) doc.bas.frmMain.Label11.Caption = voce.Caption.get() + "(F9)";
  }
  if (valore == 0) doc.Shape2.Visible = false;
  doc.bas.salvafileini_dis(doc);
}

int filtro_successivo(int valore) {
  switch (valore) {
    case 0:
      return 2;
    case 2:
      return 3;
    case 3:
      return 4;
    case 4:
      return 6;
    default:
      return 0;
  }
}

void inizializ_varTesto(distipo& doc) {
  doc.testi = predefinititesto{};
  doc.testi.coloretestodef = tavolozza(colore_testo_iniziale);
  doc.testi.coloreopacotestodef = tavolozza(colore_opaco_iniziale);
  doc.imp.bordotesto = 0;
}

}  // namespace trelvo
