#include "commands/prompt.h"

#include "commands/comando.h"
#include "commands/motore.h"
#include "model/tavolozza.h"

namespace trelvo {

namespace {

constexpr int colore_attivo = 15;
constexpr int colore_inattivo = 7;

void prompt_inattivo(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  f.Label1.Caption = "Comando: ";
  f.Label2.Caption = "";
  f.Text1.Text = "";
  f.Text2.Text = "";
  spegni_Text1(doc);
  spegni_Text2(doc);
  doc.cmd.passo = 0;
}

// A command that executes at once and fails must not stay behind as the running one.
void esegui_subito(distipo& doc) {
  try {
    eseguicomando(doc, doc.cmd.livello);
  } catch (...) {
    doc.cmd.corrente().tipo("");
    prompt_inattivo(doc);
    ripristinatrasparente(doc);
    throw;
  }
}

}  // namespace

void accendi_Text1(distipo& doc) {
  TextBox& t = doc.bas.frmMain.Text1;
  t.Enabled = true;
  t.Locked = false;
  t.BackColor = tavolozza(colore_attivo);
}

void accendi_Text2(distipo& doc) {
  TextBox& t = doc.bas.frmMain.Text2;
  t.Enabled = true;
  t.BackColor = tavolozza(colore_attivo);
}

void spegni_Text1(distipo& doc) {
  TextBox& t = doc.bas.frmMain.Text1;
  t.Enabled = false;
  t.BackColor = tavolozza(colore_inattivo);
}

void spegni_Text2(distipo& doc) {
  TextBox& t = doc.bas.frmMain.Text2;
  t.Enabled = false;
  t.BackColor = tavolozza(colore_inattivo);
}

void scrivilabel1(distipo& doc) {
  accendi_Text1(doc);
  const comando* c = comando_corrente(doc);
  if (c == nullptr) {
    prompt_inattivo(doc);
    return;
  }
  if (c->immediato) {
    esegui_subito(doc);
  } else {
    c->primoprompt(doc);
    doc.cmd.passo = 0;
  }
  frmMainForm& f = doc.bas.frmMain;
  f.Text5.Text = "";
  f.Text6.Text = "";
  f.Text7.Text = "";
  if (f.Text1.Enabled && f.Picture2.Visible) doc.bas.desktop.set_focus(&f.Text1);
}

void scrivilabel2(distipo& doc) {
  spegni_Text1(doc);
  accendi_Text2(doc);
  const comando* c = comando_corrente(doc);
  if (c != nullptr && c->secondoprompt != nullptr) doc.bas.frmMain.Label2.Caption = c->secondoprompt(doc);
}

void scrivitrov(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  if (doc.cmd.ntrovati == 0) {
    doc.bas.desktop.beep();
    f.Text1.Text = "Nessun Oggetto selezionato";
    f.Text2.Text = "";
    spegni_Text2(doc);
    f.Label2.Caption = "";
    return;
  }
  f.Text1.Text = "<" + std::to_string(doc.cmd.ntrovati) + "> " +
                 (doc.cmd.ntrovati == 1 ? "Oggetto Selezionato" : "Oggetti Selezionati");
  const comando* c = comando_corrente(doc);
  if (c != nullptr && c->conferma != nullptr) f.Label2.Caption = c->conferma;
  accendi_Text2(doc);
  f.Text2.Text = "<Invio> oppure <Clic Pulsante destro>    - <Esc> Annulla";
}

void reiniz(distipo& doc, int n) {
  auto& comandi = doc.cmd.comandi;
  if (n >= static_cast<int>(comandi.size())) comandi.resize(static_cast<std::size_t>(n) + 1);
  comandi[static_cast<std::size_t>(n)].tipo("");
  doc.Shape1.Visible = false;
  doc.Shape2.Visible = false;
  doc.Shape3.Visible = false;
}

}  // namespace trelvo
