#include "commands/due_punti.h"

#include "commands/motore.h"
#include "commands/prompt.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

constexpr int beep_coincidenti = 7;

}  // namespace

bool sempre(const distipo& /*doc*/) { return true; }

void scrivi_prompt(distipo& doc, const char* testo_prompt) { doc.bas.frmMain.Label1.Caption = testo_prompt; }

void concludi_comando(distipo& doc, const char* nome) {
  doc.cmd.ultimocomando = nome;
  reiniz(doc, doc.cmd.livello);
  doc.cmd.comandosospeso.tipo("");
  doc.Line3.Visible = false;
}

void clic_due_punti(distipo& doc, float X, float Y, primopunto primo, secondopunto secondo) {
  double a = X / doc.vista.rapscala;
  double b = Y / doc.vista.rapscala;
  reccomando& r = doc.cmd.corrente();
  if (doc.cmd.passo == 0) {
    primo(doc, a, b);
    r.x1 = a;
    r.y1 = b;
    doc.cmd.passo = 1;
    scrivilabel2(doc);
    return;
  }
  vincola_orto(doc, r.x1, r.y1, a, b);
  doc.Shape2.Visible = false;
  secondo(doc, a, b);
  if (r.x1 == r.x2 && r.y1 == r.y2) {
    for (int i = 0; i < beep_coincidenti; ++i) doc.bas.desktop.beep();
    return;
  }
  eseguicomando(doc, doc.cmd.livello);
}

void secondo_nel_record(distipo& doc, double a, double b) {
  doc.cmd.corrente().x2 = a;
  doc.cmd.corrente().y2 = b;
}

std::string al_punto(const distipo& /*doc*/) { return "Al Punto: "; }

bool orto_secondo_modo(const distipo& doc) { return doc.cmd.modoselez == "Ogget" || doc.cmd.passo == 3; }

}  // namespace trelvo
