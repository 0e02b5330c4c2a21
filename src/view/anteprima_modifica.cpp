#include "view/anteprima_modifica.h"

#include <utility>

#include "document/trelvobas.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/pigreco.h"
#include "geometry/trasformazioni.h"
#include "model/punti.h"
#include "platform/numbers.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

// One copy serves a whole class, so that its vertex list is allocated once.
template <class Classe, class Trasforma>
void dipingi_classe(distipo& doc, const Trasforma& trasforma) {
  Classe copia;
  visita_selezionati<Classe>(std::as_const(doc.dis), [&](const Classe& o) {
    copia = o;
    trasforma(copia);
    disegna(doc, copia, true);
  });
}

template <class Trasforma>
void dipingi(distipo& doc, const Trasforma& trasforma) {
  doc.surface.Cls();
  dipingi_classe<superficie>(doc, trasforma);
  dipingi_classe<Linea>(doc, trasforma);
  dipingi_classe<Rettangolo>(doc, trasforma);
  dipingi_classe<testo>(doc, trasforma);
  dipingi_classe<Cerchio>(doc, trasforma);
  dipingi_classe<Arco>(doc, trasforma);
  dipingi_classe<polilinea>(doc, trasforma);
}

template <class Trasforma>
void dipingi_per_punti(distipo& doc, const Trasforma& trasforma) {
  dipingi(doc, [&](auto& o) { per_ogni_punto(o, trasforma); });
}

struct traslazione {
  double dx;
  double dy;
  void operator()(double& x, double& y) const {
    x += dx;
    y += dy;
  }
};

void stira(Linea& o, const traslazione& t) { per_ogni_punto_marcato(o, t); }
void stira(superficie& o, const traslazione& t) { per_ogni_punto_marcato(o, t); }
void stira(Rettangolo& o, const traslazione& t) { per_ogni_punto_marcato(o, t); }
void stira(polilinea& o, const traslazione& t) { per_ogni_punto_marcato(o, t); }
void stira(testo& o, const traslazione& t) { per_ogni_punto(o, t); }
void stira(Cerchio& o, const traslazione& t) { per_ogni_punto(o, t); }

// The third point goes along only if both ends do; the ends change places where it has left their run.
void stira(Arco& o, const traslazione& t) {
  if (o.vert1_selez == 1) t(o.p1x, o.p1y);
  if (o.vert2_selez == 1) t(o.p2x, o.p2y);
  if (o.vert1_selez == 1 && o.vert2_selez == 1) t(o.p3x, o.p3y);
  double xc = 0;
  double yc = 0;
  double raggio = 0;
  cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, xc, yc, raggio);
  if (detPinArco(o.p3x, o.p3y, xc, yc, o.p1x, o.p1y, o.p2x, o.p2y)) return;
  std::swap(o.p1x, o.p2x);
  std::swap(o.p1y, o.p2y);
}

void ruota(distipo& doc, const banda& b) {
  const double theta = detAngolo(b.ax, b.ay, b.bx, b.by);
  doc.bas.frmMain.Text2.Text = number_text(theta * 180 / pigreco);
  const double gradi_testo = variazione_ang_testo(b.DX, b.DY);
  dipingi(doc, [&](auto& o) {
    per_ogni_punto(o, [&](double& x, double& y) { ruota_punto(b.ax, b.ay, theta, x, y); });
    if constexpr (requires { o.ang_testo(); }) o.ang_testo(round_clamped(o.ang_testo() + gradi_testo));
  });
}

}  // namespace

void anteprima_modifica(distipo& doc, const std::string& comando, const banda& b) {
  if (comando == "Sposta" || comando == "Copia") {
    dipingi_per_punti(doc, traslazione{b.DX, b.DY});
  } else if (comando == "Stira") {
    dipingi(doc, [&](auto& o) { stira(o, traslazione{b.DX, b.DY}); });
  } else if (comando == "Ruota") {
    ruota(doc, b);
  } else if (comando == "Specchio") {
    // Texts keep their angle.
    const specchio asse(b.ax, b.ay, b.bx, b.by);
    dipingi(doc, [&](auto& o) {
      per_ogni_punto(o, [&](double& x, double& y) { asse.rifletti(x, y); });
      // A mirror turns the run of an arc round: with its ends exchanged it is the image and not the rest of the circle.
      if constexpr (requires { o.p3x; }) {
        std::swap(o.p1x, o.p2x);
        std::swap(o.p1y, o.p2y);
      }
    });
  }
}

}  // namespace trelvo
