#include "commands/comandi_disegno.h"

#include <algorithm>
#include <cmath>

#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/misura.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "commands/spezzate.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "platform/numbers.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

constexpr int beep_coincidenti = 7;

bool sempre(const distipo& /*doc*/) { return true; }

void scrivi_prompt(distipo& doc, const char* testo_prompt) { doc.bas.frmMain.Label1.Caption = testo_prompt; }

// The end of a drawing command whose level is used again.
void concludi_comando(distipo& doc, const char* nome) {
  doc.cmd.ultimocomando = nome;
  reiniz(doc, doc.cmd.livello);
  doc.cmd.comandosospeso.tipo("");
  doc.Line3.Visible = false;
}

// First point of a line, a circle or a measure: what each keeps of it besides the record.
using primopunto = void (*)(distipo&, double a, double b);
// Second point, after the orthogonal constraint: fills x2, y2 of the record.
using secondopunto = void (*)(distipo&, double a, double b);

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

void riprendi_semplice(distipo& doc) { scrivilabel1(doc); }

// ---- Linea

void prompt_linea(distipo& doc) { scrivi_prompt(doc, " Linea_Dal Punto: "); }

std::string al_punto(const distipo& /*doc*/) { return "Al Punto: "; }

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
    riprendi_semplice(doc);
  };
  return c;
}

// ---- Cerchio

void prompt_cerchio(distipo& doc) { scrivi_prompt(doc, " Cerchio_Centro: "); }

std::string prompt_raggio(const distipo& /*doc*/) { return "Raggio: "; }

// The radius is what the second entry says; the click's own place counts only through it.
void clic_cerchio(distipo& doc, float& X, float& Y) {
  clic_due_punti(
      doc, X, Y,
      [](distipo& d, double a, double b) {
        d.bas.cur.curCerchio.Xcentro = a;
        d.bas.cur.curCerchio.Ycentro = b;
      },
      [](distipo& d, double /*a*/, double /*b*/) {
        const reccomando& r = d.cmd.corrente();
        secondo_nel_record(d, numeric_prefix(d.bas.frmMain.Text2.Text.get()) + r.x1, r.y1);
        d.bas.cur.curCerchio.Xpunto = r.x2;
        d.bas.cur.curCerchio.YPunto = r.y2;
      });
}

void esegui_cerchio(distipo& doc, int& /*n*/) {
  doc.cmd.statooggetti = 1;
  aggiungi_oggetto(doc, "Cerchio");
  concludi_comando(doc, "Cerchio");
  scrivilabel1(doc);
}

// A constraint on the radius only where the mode of selection or the step asks for one.
bool orto_secondo_modo(const distipo& doc) { return doc.cmd.modoselez == "Ogget" || doc.cmd.passo == 3; }

void anteprima_cerchio(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, orto_secondo_modo(doc));
  frmMainForm& f = doc.bas.frmMain;
  f.Text5.Text = " R=" + number_text(b.L);
  f.Text2.Text = number_text(b.L);
  f.Text6.Text = "";
  f.Text7.Text = "";
  penna_figura(doc, penna_superfici(doc), doc.bas.def.campituradef, doc.bas.def.colocampituradef);
  cerchio_banda(doc, b);
}

comando riga_cerchio() {
  comando c;
  c.nome = "Cerchio";
  c.primoprompt = prompt_cerchio;
  c.secondoprompt = prompt_raggio;
  c.clic = clic_cerchio;
  c.esegui = esegui_cerchio;
  c.anteprima = anteprima_cerchio;
  c.aggancio = sempre;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosCerchio = doc.bas.cur.curCerchio; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosCerchio, doc.bas.cur.curCerchio);
    riprendi_semplice(doc);
  };
  return c;
}

// ---- Arco

void prompt_arco(distipo& doc) { scrivi_prompt(doc, " Arco_Primo Punto(P.Iniziale): "); }

std::string secondo_arco(const distipo& doc) {
  return doc.cmd.passo == 1 ? " Arco_Secondo Punto(P.Finale): " : " Arco_Terzo Punto: ";
}

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
  X = static_cast<float>(X / doc.vista.rapscala);
  Y = static_cast<float>(Y / doc.vista.rapscala);
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
    f.Label1.Caption = f.Label2.Caption;
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
    doc.bas.frmMain.Label1.Caption = " Arco_Secondo Punto(P.Finale): ";
    doc.bas.frmMain.Text1.Text = coppia(sospeso.x2, sospeso.y2);
  };
  return c;
}

// ---- Rettangolo

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
    riprendi_semplice(doc);
  };
  return c;
}

// ---- Distanza-Angolo

void prompt_distanza(distipo& doc) { scrivi_prompt(doc, " Distanza-Angolo_Dal Punto: "); }

void clic_distanza(distipo& doc, float& X, float& Y) {
  clic_due_punti(
      doc, X, Y, [](distipo&, double, double) {}, secondo_nel_record);
}

void anteprima_distanza(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, orto_secondo_modo(doc));
  leggi_spostamento(doc, b);
  leggi_lunghezza(doc, b, " L=");
  leggi_coppia(doc, b);
}

comando riga_distanza() {
  comando c;
  c.nome = "Distanza-Angolo";
  c.tipo = genere::misura;
  c.primoprompt = prompt_distanza;
  c.secondoprompt = al_punto;
  c.clic = clic_distanza;
  c.esegui = esegui_distanza;
  c.anteprima = anteprima_distanza;
  c.aggancio = sempre;
  c.riprendi = riprendi_semplice;
  return c;
}

}  // namespace

std::vector<comando> comandi_disegno() {
  return {riga_linea(),      riga_cerchio(),    riga_arco(),    riga_polilinea(),
          riga_superficie(), riga_rettangolo(), riga_distanza()};
}

}  // namespace trelvo
