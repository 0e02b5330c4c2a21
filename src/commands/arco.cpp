#include "commands/comandi_disegno.h"

#include <utility>

#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/due_punti.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "platform/numbers.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

void prompt_arco(distipo& doc) { scrivi_prompt(doc, " Arco_Primo Punto(P.Iniziale): "); }

constexpr const char* punto_finale = " Arco_Secondo Punto(P.Finale): ";

std::string secondo_arco(const distipo& doc) { return doc.cmd.passo == 1 ? punto_finale : " Arco_Terzo Punto: "; }

// The ends are put in the order in which the figure passes through the third point.
void ordina_arco(Arco& arco) {
  double Xc = 0;
  double Yc = 0;
  double R = 0;
  cerchio_per_tre_punti(arco.p1x, arco.p1y, arco.p2x, arco.p2y, arco.p3x, arco.p3y, Xc, Yc, R);
  if (detPinArco(arco.p3x, arco.p3y, Xc, Yc, arco.p1x, arco.p1y, arco.p2x, arco.p2y)) return;
  std::swap(arco.p1x, arco.p2x);
  std::swap(arco.p1y, arco.p2y);
}

void clic_arco(distipo& doc, float& X, float& Y) {
  X = to_float(X / doc.vista.rapscala);
  Y = to_float(Y / doc.vista.rapscala);
  Arco& arco = doc.bas.cur.curArco;
  reccomando& r = doc.cmd.corrente();
  frmMainForm& f = doc.bas.frmMain;
  if (doc.cmd.passo == 0) {
    doc.cmd.passo = 1;
    arco.p1x = r.x1 = X;
    arco.p1y = r.y1 = Y;
    scrivilabel2(doc);
  } else if (doc.cmd.passo == 1) {
    doc.cmd.passo = 2;
    arco.p2x = r.x2 = X;
    arco.p2y = r.y2 = Y;
    // What stood in the second prompt, which a zoom does not write again.
    f.Label1.Caption = punto_finale;
    f.Text1.Text = f.Text2.Text;
    scrivilabel2(doc);
  } else {
    arco.p3x = X;
    arco.p3y = Y;
    ordina_arco(arco);
    eseguicomando(doc, doc.cmd.livello);
    scrivilabel1(doc);
  }
}

void esegui_arco(distipo& doc, int& /*n*/) {
  doc.cmd.statooggetti = 1;
  aggiungi_oggetto(doc, "Arco");
  concludi_comando(doc, "Arco");
}

void anteprima_arco(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, false);
  leggi_spostamento(doc, b);
  leggi_lunghezza(doc, b, " R=");
  leggi_coppia(doc, b);
  if (doc.cmd.passo == 2) secondo_lato(doc, b);
}

}  // namespace

comando riga_arco() {
  comando c;
  c.nome = "Arco";
  c.primoprompt = prompt_arco;
  c.secondoprompt = secondo_arco;
  c.clic = clic_arco;
  c.esegui = esegui_arco;
  c.anteprima = anteprima_arco;
  c.aggancio = sempre;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosArco = doc.bas.cur.curArco; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosArco, doc.bas.cur.curArco);
    const reccomando& sospeso = doc.cmd.comandosospeso;
    scrivilabel1(doc);
    if (sospeso.nvertici != 2) return;
    doc.bas.frmMain.Label1.Caption = punto_finale;
    doc.bas.frmMain.Text1.Text = coppia(sospeso.x2, sospeso.y2);
  };
  return c;
}

}  // namespace trelvo
