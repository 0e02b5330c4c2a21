// Which objects lie in an ordered window or cross its sides. Outlines count, fills do not. Values that are no numbers
// meet nothing. No errors.
//
// Most objects of a big drawing are plainly inside or plainly beside the window: those are told at once. A crossing
// lies both on the object and on a side, so none is lost by that.
#pragma once

#include <span>

#include "geometry/finestra.h"
#include "geometry/riquadro_testo.h"
#include "model/vertice.h"

namespace trelvo {

// Whether the segment meets any of the four sides, by the plain tests.
bool incrocia_lati(const finestra& f, double xi, double yi, double xf, double yf);

inline bool lineaintersfin(const finestra& f, double xi, double yi, double xf, double yf) {
  if (f.contiene(xi, yi) || f.contiene(xf, yf)) return true;
  if ((lati_oltre(f, xi, yi) & lati_oltre(f, xf, yf)) != 0) return false;
  return incrocia_lati(f, xi, yi, xf, yf);
}

bool polilineaintersfin(const finestra& f, std::span<const vertice> vertici);
// With the closing edge; for rectangles too.
bool superficieintersfin(const finestra& f, std::span<const vertice> vertici);
// A window inside the circle does not meet it; a circle inside the window does, by its rightmost point.
bool cerchiointersfin(const finestra& f, double xc, double yc, double raggio);
bool arcointersfin(const finestra& f, double p1x, double p1y, double p2x, double p2y, double p3x, double p3y);
// By the box and its middle line.
bool testointersfin(const finestra& f, const riquadro_testo& r);

}  // namespace trelvo
