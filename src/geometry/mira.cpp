#include "geometry/mira.h"

#include <cmath>

#include <algorithm>
#include <array>
#include <cstdint>

#include "geometry/angoli.h"
#include "geometry/cerchi.h"

namespace trelvo {

namespace {

// True only where the segment cannot be found to meet the circle, rounding included.
bool lontano(double X, double Y, double R, double xi, double yi, double xf, double yf) {
  const double g = distacco(X, Y, std::min(xi, xf), std::min(yi, yf), std::max(xi, xf), std::max(yi, yf));
  if (!(g > 0)) return false;
  const double grandezza = X * X + Y * Y + R * R + g * g + xi * xi + yi * yi + xf * xf + yf * yf;
  return g * g - R * R > margine_relativo * grandezza + margine_minimo;
}

}  // namespace

bool segmento_in_mira(double X, double Y, double R, double xi, double yi, double xf, double yf) {
  if (lontano(X, Y, R, xi, yi, xf, yf)) return false;
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  std::int16_t flag1 = 0;
  std::int16_t flag2 = 0;
  detinters_cerchio_segmento(X, Y, R, xi, yi, xf, yf, x1, y1, x2, y2, flag1, flag2);
  return flag1 == 1 || flag2 == 1;
}

bool spezzata_in_mira(double X, double Y, double R, std::span<const vertice> vertici, bool chiusa, std::size_t& lato) {
  const std::size_t n = vertici.size();
  for (std::size_t i = 0; i < n; ++i) {
    if (i + 1 == n && !chiusa) break;
    const vertice& a = vertici[i];
    const vertice& b = vertici[i + 1 == n ? 0 : i + 1];
    if (segmento_in_mira(X, Y, R, a.x, a.y, b.x, b.y)) {
      lato = i;
      return true;
    }
  }
  return false;
}

bool riquadro_in_mira(double X, double Y, double R, const riquadro_testo& r, std::size_t& lato) {
  const std::array<vertice, 4> angoli = {{{r.x[0], r.y[0]}, {r.x[1], r.y[1]}, {r.x[2], r.y[2]}, {r.x[3], r.y[3]}}};
  return spezzata_in_mira(X, Y, R, angoli, true, lato);
}

bool testo_in_mira(double X, double Y, double R, const riquadro_testo& r) {
  std::size_t lato = 0;
  if (riquadro_in_mira(X, Y, R, r, lato)) return true;
  const asse_testo asse = linea_media(r);
  return segmento_in_mira(X, Y, R, asse.x1, asse.y1, asse.x2, asse.y2);
}

bool cerchio_in_mira(double X, double Y, double R, double xc, double yc, double raggio) {
  double x1 = 0;
  double x2 = 0;
  return cerchi_secanti(xc, yc, raggio, X, Y, R, x1, x2);
}

bool arco_in_mira(double X, double Y, double R, double p1x, double p1y, double p2x, double p2y, double p3x,
                  double p3y) {
  double xc = 0;
  double yc = 0;
  double raggio = 0;
  cerchio_per_tre_punti(p1x, p1y, p2x, p2y, p3x, p3y, xc, yc, raggio);
  double x1 = 0;
  double x2 = 0;
  if (!cerchi_secanti(xc, yc, raggio, X, Y, R, x1, x2)) return false;
  // The points of detinters_cerchio_cerchio; one that has no root there is no point of the arc, and a pick or a move of
  // the pointer is no place for an error.
  const auto sull_arco = [&](double x) {
    const double radicando = R * R - (x - X) * (x - X);
    return radicando >= 0 && detPinArco(x, Y + std::sqrt(radicando), xc, yc, p1x, p1y, p2x, p2y);
  };
  return sull_arco(x1) || sull_arco(x2);
}

}  // namespace trelvo
