// Which objects lie wholly in an ordered window, bounds included: all their test points must. No errors.
#pragma once

#include <span>

#include "geometry/finestra.h"
#include "geometry/riquadro_testo.h"
#include "model/vertice.h"

namespace trelvo {

// Open or closed alike.
bool verticiinfin(const finestra& f, std::span<const vertice> vertici);
inline bool lineainfin(const finestra& f, double xi, double yi, double xf, double yf) {
  return f.contiene(xf, yf) && f.contiene(xi, yi);
}
// By the corners of the bounding square.
inline bool cerchioinfin(const finestra& f, double xc, double yc, double raggio) {
  return f.contiene(xc - raggio, yc - raggio) && f.contiene(xc + raggio, yc + raggio);
}
// By the three points; the bulge between them is not measured.
inline bool arcoinfin(const finestra& f, double p1x, double p1y, double p2x, double p2y, double p3x, double p3y) {
  return f.contiene(p1x, p1y) && f.contiene(p2x, p2y) && f.contiene(p3x, p3y);
}
inline bool testoinfin(const finestra& f, const riquadro_testo& r) {
  return f.contiene(r.x[0], r.y[0]) && f.contiene(r.x[1], r.y[1]) && f.contiene(r.x[2], r.y[2]) &&
         f.contiene(r.x[3], r.y[3]);
}

}  // namespace trelvo
