#include "view/redraw.h"

#include <cmath>

#include "document/trelvobas.h"
#include "model/tavolozza.h"
#include "view/candidati.h"
#include "view/mappa.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

// The grid vanishes where more than about so many columns would show.
constexpr double colonne_massime = 100;

void disegna_griglia(distipo& doc) {
  const double p = doc.imp.passogriglia;
  if (!(p > 0) || !doc.imp.griglia()) return;
  Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  const auto multiplo = [&](double lunghezza) { return std::floor(lunghezza / scala / p) * p; };
  const double A = multiplo(s.ScaleWidth);
  const double B = multiplo(s.ScaleHeight);
  const double C = multiplo(s.ScaleLeft);
  const double D = multiplo(s.ScaleTop);
  if (!std::isfinite(A + B + C + D) || p < std::abs(A) / colonne_massime) return;
  const Color colore = tavolozza(doc.imp.colorepuntatore.valore);
  for (double i = 0; i <= A; i += p) {
    for (double j = 0; j <= B; j += p) s.PSet((i + C) * scala, (j + D) * scala, colore);
  }
}

template <class Classe>
void disegna_classe(distipo& doc, const finestra& f) {
  per_candidati<Classe>(doc, ricerca<Classe>::in(doc, f), vivo<Classe>,
                        [&](posizione_t /*posizione*/, const Classe& o) {
                          if (interseca(doc, o, f)) disegna(doc, o, o.stato == stato_presente);
                          return false;
                        });
}

template <class... Classi>
void disegna_vista(distipo& doc, const finestra& f) {
  (disegna_classe<Classi>(doc, f), ...);
}

}  // namespace

bool interseca(distipo& /*doc*/, const Linea& o, const finestra& f) {
  return lineaintersfin(f, o.Xi, o.Yi, o.Xf, o.Yf);
}
bool interseca(distipo& /*doc*/, const Arco& o, const finestra& f) {
  return arcointersfin(f, o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y);
}
bool interseca(distipo& /*doc*/, const Cerchio& o, const finestra& f) {
  return cerchiointersfin(f, o.Xcentro, o.Ycentro, o.raggio);
}
bool interseca(distipo& /*doc*/, const polilinea& o, const finestra& f) {
  return polilineaintersfin(f, o.vertici.tutti());
}
bool interseca(distipo& /*doc*/, const Rettangolo& o, const finestra& f) {
  return superficieintersfin(f, o.vertici.tutti());
}
bool interseca(distipo& /*doc*/, const superficie& o, const finestra& f) {
  return superficieintersfin(f, o.vertici.tutti());
}
bool interseca(distipo& doc, const testo& o, const finestra& f) { return testointersfin(f, riquadro_mondo(doc, o)); }

void impostdistipo(distipo& doc) {
  doc.surface.BackColor = tavolozza(doc.imp.coloresfondo.valore);
  disegna_griglia(doc);
  doc.Line3.Visible = false;
  doc.Shape1.Visible = false;
  doc.Shape2.Visible = false;
  doc.Shape3.Visible = false;
  doc.bas.frmMain.Text2.Enabled = false;
  const Color puntatore = tavolozza(doc.imp.colorepuntatore.valore);
  doc.Line1.BorderColor = puntatore;
  doc.Line2.BorderColor = puntatore;
}

void redraw(distipo& doc) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  doc.surface.BackColor = tavolozza(doc.imp.coloresfondo.valore);
  doc.surface.Cls();
  const vistaviva v = vista_viva(doc);
  const finestra f{v.sinistra, v.alto, v.destra, v.basso};
  disegna_vista<superficie, Rettangolo, Cerchio, Arco, testo, polilinea, Linea>(doc, f);
  impostdistipo(doc);
}

}  // namespace trelvo
