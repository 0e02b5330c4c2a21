#include "commands/comandi_disegno.h"

#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/due_punti.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

void prompt_linea(distipo& doc) { scrivi_prompt(doc, " Linea_Dal Punto: "); }

void clic_linea(distipo& doc, float& X, float& Y) {
  clic_due_punti(
      doc, X, Y,
      [](distipo& d, double a, double b) {
        d.bas.cur.curLinea.Xi = a;
        d.bas.cur.curLinea.Yi = b;
      },
      [](distipo& d, double a, double b) {
        secondo_nel_record(d, a, b);
        d.bas.cur.curLinea.Xf = a;
        d.bas.cur.curLinea.Yf = b;
      });
}

// The end of a segment is the start of the next one.
void esegui_linea(distipo& doc, int& n) {
  doc.cmd.statooggetti = 1;
  aggiungi_oggetto(doc, "Linea");
  reccomando& r = doc.cmd.comandi[static_cast<std::size_t>(n)];
  doc.bas.frmMain.Text1.Text = coppia(r.x2, r.y2);
  r.x1 = r.x2;
  r.y1 = r.y2;
  doc.bas.cur.curLinea.Xi = r.x2;
  doc.bas.cur.curLinea.Yi = r.y2;
  doc.cmd.comandosospeso.tipo("");
}

void anteprima_linea(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, true);
  leggi_spostamento(doc, b);
  leggi_lunghezza(doc, b, " L=");
  leggi_coppia(doc, b);
  penna_linea(doc, penna_linee(doc));
}

}  // namespace

comando riga_linea() {
  comando c;
  c.nome = "Linea";
  c.primoprompt = prompt_linea;
  c.secondoprompt = al_punto;
  c.clic = clic_linea;
  c.esegui = esegui_linea;
  c.anteprima = anteprima_linea;
  c.aggancio = sempre;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosLinea = doc.bas.cur.curLinea; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosLinea, doc.bas.cur.curLinea);
    scrivilabel1(doc);
  };
  return c;
}

}  // namespace trelvo
