#include "commands/modifica.h"

#include "commands/motore.h"
#include "commands/prompt.h"
#include "commands/selezione_modo.h"
#include "document/trelvobas.h"

namespace trelvo {

namespace {

constexpr int primo_comando = 3;
constexpr int ultimo_comando = 9;
constexpr int indice_stira = 8;

bool disegno_vuoto(const distipo& doc) { return doc.cmd.statooggetti != 1 && doc.cmd.statotesti != 1; }

const char* modo(int Index) { return Index == 1 ? modo_oggetto : Index == 2 ? modo_finestra : modo_intersezione; }

}  // namespace

const char* modo_scelto(const distipo& doc) {
  for (int i = 1; i <= 3; ++i) {
    if (doc.impo(i).Checked) return modo(i);
  }
  return modo_intersezione;
}

void modifica_Click(distipo& doc, int Index) {
  if (Index >= primo_comando && Index <= ultimo_comando && !disegno_vuoto(doc)) abbandona_sospeso(doc);
  avvia_modifica(doc, Index);
}

void avvia_modifica(distipo& doc, int Index) {
  if (disegno_vuoto(doc)) {
    if (Index == 1) return;
    doc.bas.desktop.beep();
    doc.bas.desktop.message_box("Impossibile eseguire: \"" + doc.modifica(Index).Caption.get() + "\" - Disegno Vuoto",
                                Buttons::ok);
    return;
  }
  if (doc.cmd.comandosospeso.tipo().empty()) doc.cmd.ntrovati = 0;
  if (Index < primo_comando || Index > ultimo_comando) return;
  if (!doc.cmd.comando().empty()) annullacomando(doc, doc.cmd.livello);
  doc.cmd.corrente().tipo(doc.modifica(Index).Caption);
  if (Index != indice_stira) doc.cmd.modoselez = modo_scelto(doc);
  doc.cmd.modificato = 1;
  scrivilabel1(doc);
}

void impo_Click(distipo& doc, int Index) {
  for (int i = 1; i <= 3; ++i) doc.impo(i).Checked = i == Index;
  doc.cmd.modoselez = modo(Index);
  if (doc.cmd.comando().empty()) return;
  doc.Shape1.Visible = false;
  doc.Shape2.Visible = false;
  doc.Shape3.Visible = false;
  scrivilabel1(doc);
  doc.bas.frmMain.Label2.Caption = "";
  doc.bas.frmMain.Text2.Text = "";
}

}  // namespace trelvo
