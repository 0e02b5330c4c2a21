#include "view/portata.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <span>

#include "geometry/cerchi.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

// Squares of squares of coordinates below this are no infinities.
constexpr double coordinata_massima = 1e30;

// The rounding of the circle tests, in parts of the coordinates: the error of the difference of two squares under a
// root.
constexpr double parte_cerchi = 1e-5;
// With two circles the error also grows with the distance, to some parts of the radius on this.
constexpr double parte_raggio = 0.1;

// ---- extents

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
  double lato() const { return std::max(x2 - x1, y2 - y1); }
  bool comune() const { return somma < coordinata_massima; }
  estensione allargata(double margine) const { return {x1 - margine, y1 - margine, x2 + margine, y2 + margine, somma}; }
  riquadro intorno() const { return riquadro::intorno(x1, y1, x2, y2); }
};

// ---- edges under a pick

// How far from an edge a pick can find it, apart from its own radius. A pick counts an edge as far off only where the
// gap is clear of the rounding of its equation, and that grows with the slope; on the steepest ones it knows no bound.
double margine_lato(double x1, double y1, double x2, double y2) {
  constexpr double ripidita_massima = 0.01;
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  const double k = dx == 0 || dy == 0 ? margine_relativo : margine_relativo * (1 + (dy / dx) * (dy / dx));
  if (!(k <= ripidita_massima)) return infinito;
  const double ultimo = dx == 0 ? 0 : 2 * std::sqrt(margine_minimo) / std::abs(dx);
  return 2 * std::sqrt(k * (x1 * x1 + y1 * y1 + x2 * x2 + y2 * y2)) + ultimo;
}

// An object found from so far that it would be in the way of the windows has its place among the far ones too.
portata portata_di_lati(const estensione& e, double margine) {
  constexpr double parte_coordinate = 2e-5;
  portata p;
  const double lecito = std::max(e.lato(), parte_coordinate * e.massima());
  if (margine <= lecito) {
    p.vicino = e.allargata(margine).intorno();
  } else {
    p.vicino = e.intorno();
    p.lontano = e.allargata(margine).intorno();
  }
  return p;
}

// Without a vertex it counts as inside any window.
portata portata_di_vertici(std::span<const vertice> vertici, bool chiusa) {
  estensione e;
  for (const vertice& v : vertici) e.aggiungi(v.x, v.y);
  if (vertici.empty() || !e.comune()) return {};
  double margine = 0;
  for (std::size_t i = 1; i < vertici.size(); ++i) {
    const vertice& a = vertici[i - 1];
    const vertice& b = vertici[i];
    margine = std::max(margine, margine_lato(a.x, a.y, b.x, b.y));
  }
  const vertice& a = vertici.back();
  const vertice& b = vertici.front();
  if (chiusa) margine = std::max(margine, margine_lato(a.x, a.y, b.x, b.y));
  return portata_di_lati(e, margine);
}

// ---- texts

// The corners come out of a product with the scale and a division by it, so the last digits change with the zoom. That
// matters for an edge that is nearly upright: only one so small against the corners that it adds nothing to any of
// them is upright at every scale.
double margine_bordo(double dx, double dy, const riquadro_testo& r) {
  constexpr double parte_incerta = 1e-9;
  constexpr double parte_nulla = std::numeric_limits<double>::epsilon() / 16;
  double minore = infinito;
  double maggiore = 0;
  for (int i = 0; i < 4; ++i) {
    minore = std::min(minore, std::abs(r.x[i]));
    maggiore = std::max({maggiore, std::abs(r.x[i]), std::abs(r.y[i])});
  }
  const bool dritto = dx == 0 || dy == 0 || std::abs(dx) < parte_nulla * minore;
  if (!dritto && std::abs(dx) < parte_incerta * maggiore) return infinito;
  // Edges that lie elsewhere by the size of the text: one with the largest coordinates stands for both.
  return margine_lato(maggiore, maggiore, dritto ? maggiore : maggiore + dx, maggiore + dy);
}

}  // namespace

portata portata_di(distipo& /*doc*/, const Linea& o) {
  estensione e;
  e.aggiungi(o.Xi, o.Yi);
  e.aggiungi(o.Xf, o.Yf);
  if (!e.comune()) return {};
  return portata_di_lati(e, margine_lato(o.Xi, o.Yi, o.Xf, o.Yf));
}

portata portata_di(distipo& /*doc*/, const polilinea& o) { return portata_di_vertici(o.vertici.tutti(), false); }
portata portata_di(distipo& /*doc*/, const Rettangolo& o) { return portata_di_vertici(o.vertici.tutti(), true); }
portata portata_di(distipo& /*doc*/, const superficie& o) { return portata_di_vertici(o.vertici.tutti(), true); }

// The equation of the common chord loses its digits where the centres are nearly on one level: a pick on the row of the
// centre may find the circle at any distance.
portata portata_di(distipo& /*doc*/, const Cerchio& o) {
  const double raggio = std::abs(o.raggio);
  const double grandezza = std::abs(o.Xcentro) + std::abs(o.Ycentro) + raggio;
  if (!(grandezza < coordinata_massima)) return {};
  const double errore = parte_cerchi * grandezza;
  const double largo = raggio + parte_raggio * raggio + errore;
  portata p;
  p.vicino = riquadro::intorno(o.Xcentro - largo, o.Ycentro - largo, o.Xcentro + largo, o.Ycentro + largo);
  p.lontano = riquadro::intorno(-infinito, o.Ycentro - errore, infinito, o.Ycentro + errore);
  return p;
}

// By its whole circle, computed as the tests do: of points in line it is a point at the origin. What a pick finds must
// lie within its own radius, so there is no far place.
portata portata_di(distipo& /*doc*/, const Arco& o) {
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
  if (!e.comune()) return {};
  portata p;
  p.vicino = e.allargata(parte_cerchi * e.somma).intorno();
  return p;
}

portata portata_di(distipo& doc, const testo& o) {
  const vertice ingombro = ingombro_testo(doc, o);
  const riquadro_testo r = vertici_testo(o.pos_testox, o.pos_testoy, ingombro.x, ingombro.y, o.ang_testo());
  estensione e;
  for (int i = 0; i < 4; ++i) e.aggiungi(r.x[i], r.y[i]);
  if (!e.comune()) return {};
  const double angolo = o.ang_testo() * std::numbers::pi / 180;
  const double c = std::cos(angolo);
  const double s = std::sin(angolo);
  const double margine =
      std::max(margine_bordo(ingombro.x * c, ingombro.x * s, r), margine_bordo(ingombro.y * s, ingombro.y * c, r));
  constexpr double parte_scala = 1e-9;
  return portata_di_lati(e.allargata(parte_scala * e.somma), margine);
}

riquadro zona_di(const mira& m) {
  const double largo = 4 * m.R + parte_cerchi * (std::abs(m.X) + std::abs(m.Y) + m.R);
  return riquadro::intorno(m.X - largo, m.Y - largo, m.X + largo, m.Y + largo);
}

riquadro riga_di(const mira& m) {
  const double alta = parte_cerchi * (std::abs(m.X) + std::abs(m.Y) + m.R);
  return riquadro::intorno(m.X - alta, m.Y - alta, m.X + alta, m.Y + alta);
}

bool a_portata(const finestra& f) { return f.x1 <= f.x2 && f.y1 <= f.y2; }
bool a_portata(const mira& m) { return std::abs(m.X) + std::abs(m.Y) + m.R < coordinata_massima && m.R >= 0; }
bool scala_comune(double rapscala) { return rapscala > 1 / coordinata_massima && rapscala < coordinata_massima; }

}  // namespace trelvo
