#include "view/portata.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "geometry/cerchi.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

// Squares of squares of coordinates below this are no infinities.
constexpr double coordinata_massima = 1e30;

// The rounding of the tests, in parts of the coordinates: the error of the difference of two squares under a root.
constexpr double parte_lati = 4e-6;
constexpr double parte_cerchi = 1e-5;

struct estensione {
  double x1 = infinito;
  double y1 = infinito;
  double x2 = -infinito;
  double y2 = -infinito;
  double somma = 0;

  void aggiungi(double x, double y) {
    x1 = std::min(x1, x);
    y1 = std::min(y1, y);
    x2 = std::max(x2, x);
    y2 = std::max(y2, y);
    // Sums keep what is no number, minima do not.
    somma += std::abs(x) + std::abs(y);
  }
  double massima() const { return std::max({-x1, x2, -y1, y2, 0.0}); }
  // Made wider by that; everywhere if there is no telling.
  riquadro allargata(double margine) const {
    if (!(somma < coordinata_massima)) return riquadro::ovunque();
    return riquadro::intorno(x1 - margine, y1 - margine, x2 + margine, y2 + margine);
  }
  riquadro con_lati() const { return allargata(parte_lati * massima()); }
};

// Without a vertex it counts as inside any window.
riquadro portata_di_vertici(std::span<const vertice> vertici) {
  estensione e;
  for (const vertice& v : vertici) e.aggiungi(v.x, v.y);
  return vertici.empty() ? riquadro::ovunque() : e.con_lati();
}

}  // namespace

riquadro portata_di(distipo& /*doc*/, const Linea& o) {
  estensione e;
  e.aggiungi(o.Xi, o.Yi);
  e.aggiungi(o.Xf, o.Yf);
  return e.con_lati();
}

riquadro portata_di(distipo& /*doc*/, const polilinea& o) { return portata_di_vertici(o.vertici.tutti()); }
riquadro portata_di(distipo& /*doc*/, const Rettangolo& o) { return portata_di_vertici(o.vertici.tutti()); }
riquadro portata_di(distipo& /*doc*/, const superficie& o) { return portata_di_vertici(o.vertici.tutti()); }

riquadro portata_di(distipo& /*doc*/, const Cerchio& o) {
  const double raggio = std::abs(o.raggio);
  estensione e;
  e.aggiungi(o.Xcentro - raggio, o.Ycentro - raggio);
  e.aggiungi(o.Xcentro + raggio, o.Ycentro + raggio);
  return e.allargata(parte_cerchi * e.somma);
}

// By its whole circle, computed as the tests do: of points in line it is a point at the origin.
riquadro portata_di(distipo& /*doc*/, const Arco& o) {
  double xc = 0;
  double yc = 0;
  double raggio = 0;
  cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, xc, yc, raggio);
  estensione e;
  e.aggiungi(o.p1x, o.p1y);
  e.aggiungi(o.p2x, o.p2y);
  e.aggiungi(o.p3x, o.p3y);
  e.aggiungi(xc - raggio, yc - raggio);
  e.aggiungi(xc + raggio, yc + raggio);
  return e.allargata(parte_cerchi * e.somma);
}

// The corners come out of a product with the scale and a division by it, so their last digits change with the zoom.
riquadro portata_di(distipo& doc, const testo& o) {
  const vertice ingombro = ingombro_testo(doc, o);
  const riquadro_testo r = vertici_testo(o.pos_testox, o.pos_testoy, ingombro.x, ingombro.y, o.ang_testo());
  estensione e;
  for (int i = 0; i < 4; ++i) e.aggiungi(r.x[i], r.y[i]);
  return e.con_lati();
}

riquadro zona_di(const mira& m) {
  const double largo = 4 * m.R + parte_cerchi * (std::abs(m.X) + std::abs(m.Y) + m.R);
  return riquadro::intorno(m.X - largo, m.Y - largo, m.X + largo, m.Y + largo);
}

bool a_portata(const finestra& f) { return f.x1 <= f.x2 && f.y1 <= f.y2; }
bool a_portata(const mira& m) { return std::abs(m.X) + std::abs(m.Y) + m.R < coordinata_massima && m.R >= 0; }
bool scala_comune(double rapscala) { return rapscala > 1 / coordinata_massima && rapscala < coordinata_massima; }

}  // namespace trelvo
