#include "commands/comandi_disegno.h"

#include <algorithm>

#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/due_punti.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

void prompt_rettangolo(distipo& doc) {
  scrivi_prompt(doc, " Rettangolo: Primo Punto: ");
  doc.bas.cur.curRettangolo.vertic(0);
}

std::string secondo_rettangolo(const distipo& /*doc*/) { return "Secondo Punto: "; }

void clic_rettangolo(distipo& doc, float& X, float& Y) {
  const double a = X / doc.vista.rapscala;
  const double b = Y / doc.vista.rapscala;
  reccomando& r = doc.cmd.corrente();
  if (doc.cmd.passo == 0) {
    doc.cmd.passo = 1;
    r.x1 = a;
    r.y1 = b;
    scrivilabel2(doc);
    return;
  }
  r.x2 = a;
  r.y2 = b;
  const double xa = std::min(r.x1, r.x2);
  const double xb = std::max(r.x1, r.x2);
  const double ya = std::min(r.y1, r.y2);
  const double yb = std::max(r.y1, r.y2);
  Rettangolo& ret = doc.bas.cur.curRettangolo;
  ret.vertic(4);
  ret.inser_vert_ret(xa, ya, 1);
  ret.inser_vert_ret(xa, yb, 2);
  ret.inser_vert_ret(xb, yb, 3);
  ret.inser_vert_ret(xb, ya, 4);
  eseguicomando(doc, doc.cmd.livello);
  scrivilabel1(doc);
}

void esegui_rettangolo(distipo& doc, int& /*n*/) {
  doc.cmd.statooggetti = 1;
  aggiungi_oggetto(doc, "Rettangolo");
  concludi_comando(doc, "Rettangolo");
}

void anteprima_rettangolo(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, false);
  leggi_spostamento(doc, b);
  leggi_coppia(doc, b);
  penna_figura(doc, penna_superfici(doc), doc.bas.def.campituradef, doc.bas.def.colocampituradef);
  finestra_banda(doc, b);
}

}  // namespace

comando riga_rettangolo() {
  comando c;
  c.nome = "Rettangolo";
  c.primoprompt = prompt_rettangolo;
  c.secondoprompt = secondo_rettangolo;
  c.clic = clic_rettangolo;
  c.esegui = esegui_rettangolo;
  c.anteprima = anteprima_rettangolo;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosRettangolo = doc.bas.cur.curRettangolo; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosRettangolo, doc.bas.cur.curRettangolo);
    scrivilabel1(doc);
  };
  return c;
}

}  // namespace trelvo
