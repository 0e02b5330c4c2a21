#include "geometry/intersfin.h"

#include <array>
#include <cstdint>

#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/rette.h"

namespace trelvo {

namespace {

struct lato {
  double x1;
  double y1;
  double x2;
  double y2;
};

std::array<lato, 4> lati_di(const finestra& f) {
  return {{{f.x1, f.y1, f.x2, f.y1}, {f.x1, f.y2, f.x2, f.y2}, {f.x1, f.y1, f.x1, f.y2}, {f.x2, f.y1, f.x2, f.y2}}};
}

// Where the circle meets a side; a flag for each of the two points.
struct incontri {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  std::int16_t flag1 = 0;
  std::int16_t flag2 = 0;
};

incontri incontri_di(const lato& l, double xc, double yc, double raggio) {
  incontri i;
  detinters_cerchio_segmento(xc, yc, raggio, l.x1, l.y1, l.x2, l.y2, i.x1, i.y1, i.x2, i.y2, i.flag1, i.flag2);
  return i;
}

// Neither end is in the window.
bool tratto_incrocia(const finestra& f, const vertice& a, const vertice& b) {
  if ((lati_oltre(f, a.x, a.y) & lati_oltre(f, b.x, b.y)) != 0) return false;
  return incrocia_lati(f, a.x, a.y, b.x, b.y);
}

bool spezzataintersfin(const finestra& f, std::span<const vertice> vertici, bool chiusa) {
  unsigned comuni = ogni_lato;
  for (const vertice& v : vertici) {
    const unsigned oltre = lati_oltre(f, v.x, v.y);
    if (oltre == 0 && f.contiene(v.x, v.y)) return true;
    comuni &= oltre;
  }
  if (comuni != 0) return false;
  for (std::size_t i = 1; i < vertici.size(); ++i) {
    if (tratto_incrocia(f, vertici[i - 1], vertici[i])) return true;
  }
  return chiusa && tratto_incrocia(f, vertici.back(), vertici.front());
}

}  // namespace

bool incrocia_lati(const finestra& f, double xi, double yi, double xf, double yf) {
  for (const lato& l : lati_di(f)) {
    double x = 0;
    double y = 0;
    std::int16_t flag = 0;
    // The side comes first: a point on an upright or level line then has that line's own coordinate, to the bit.
    detinters_segmenti(l.x1, l.y1, l.x2, l.y2, xi, yi, xf, yf, x, y, flag);
    if (flag == 1) return true;
  }
  return false;
}

bool polilineaintersfin(const finestra& f, std::span<const vertice> vertici) {
  return spezzataintersfin(f, vertici, false);
}

bool superficieintersfin(const finestra& f, std::span<const vertice> vertici) {
  return spezzataintersfin(f, vertici, true);
}

bool cerchiointersfin(const finestra& f, double xc, double yc, double raggio) {
  if (f.contiene(xc + raggio, yc)) return true;
  if (cerchio_lontano_dal_riquadro(xc, yc, raggio, f.x1, f.y1, f.x2, f.y2)) return false;
  for (const lato& l : lati_di(f)) {
    const incontri i = incontri_di(l, xc, yc, raggio);
    if (i.flag1 == 1 || i.flag2 == 1) return true;
  }
  return false;
}

bool arcointersfin(const finestra& f, double p1x, double p1y, double p2x, double p2y, double p3x, double p3y) {
  if (f.contiene(p1x, p1y) || f.contiene(p2x, p2y) || f.contiene(p3x, p3y)) return true;
  double xc = 0;
  double yc = 0;
  double raggio = 0;
  cerchio_per_tre_punti(p1x, p1y, p2x, p2y, p3x, p3y, xc, yc, raggio);
  if (cerchio_lontano_dal_riquadro(xc, yc, raggio, f.x1, f.y1, f.x2, f.y2)) return false;
  for (const lato& l : lati_di(f)) {
    const incontri i = incontri_di(l, xc, yc, raggio);
    if (i.flag1 == 1 && detPinArco(i.x1, i.y1, xc, yc, p1x, p1y, p2x, p2y)) return true;
    if (i.flag2 == 1 && detPinArco(i.x2, i.y2, xc, yc, p1x, p1y, p2x, p2y)) return true;
  }
  return false;
}

bool testointersfin(const finestra& f, const riquadro_testo& r) {
  unsigned comuni = ogni_lato;
  for (int i = 0; i < 4; ++i) {
    if (f.contiene(r.x[i], r.y[i])) return true;
    comuni &= lati_oltre(f, r.x[i], r.y[i]);
  }
  if (comuni != 0) return false;
  constexpr int bordi[4][2] = {{0, 1}, {3, 2}, {0, 3}, {1, 2}};
  for (const auto& [a, b] : bordi) {
    if (tratto_incrocia(f, {r.x[a], r.y[a]}, {r.x[b], r.y[b]})) return true;
  }
  const asse_testo asse = linea_media(r);
  // The line's ends may lie in the window, but they count for nothing: its crossings alone do.
  return incrocia_lati(f, asse.x1, asse.y1, asse.x2, asse.y2);
}

}  // namespace trelvo
