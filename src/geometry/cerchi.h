// Circles of the plane, in drawing units. Results come back in the caller's variables; flags are 1 for found, 0 for
// not.
#pragma once

#include <algorithm>
#include <cstdint>

namespace trelvo {

// a*x*x + b*x + c = 0, a not 0. The discriminant is always written, the roots only when it is not negative.
void risolvi2grado(double a, double b, double c, double& discriminante, double& x1, double& x2);

// Where the line of the segment meets the circle; a flag says whether that point lies on the segment.
void detinters_cerchio_segmento(double Xc, double Yc, double R, double x1, double y1, double x2, double y2, double& IX1,
                                double& IY1, double& IX2, double& IY2, std::int16_t& flag1, std::int16_t& flag2);

// Where two circles meet. The y of each point is taken on the upper half of circle b, and with both centres on one
// level the x outputs carry the y values. Error 5 where that upper half has no point at the x found; the flag is
// written before.
void detinters_cerchio_cerchio(double Xa, double Ya, double Ra, double Xb, double Yb, double Rb, std::int16_t& flag,
                               double& IX1, double& IY1, double& IX2, double& IY2);

// The flag of detinters_cerchio_cerchio alone, with the abscissas that it goes on from. No errors.
bool cerchi_secanti(double Xa, double Ya, double Ra, double Xb, double Yb, double Rb, double& IX1, double& IX2);

// Circle through three points. Outputs stay as they were when the points are collinear.
void cerchio_per_tre_punti(double p1x, double p1y, double p2x, double p2y, double p3x, double p3y, double& Xc,
                           double& Yc, double& R);

// Rounding lets a circle meet a line that it misses by a little: within this part of the squares of the coordinates.
constexpr double margine_relativo = 1e-12;
constexpr double margine_minimo = 1e-280;

// The gap between a point and an ordered box, along the axis where it is larger; not positive for none.
inline double distacco(double x, double y, double x1, double y1, double x2, double y2) {
  return std::max(std::max(x1 - x, x - x2), std::max(y1 - y, y - y2));
}

// True only where no side of the ordered box can be found to meet the circle, rounding included. NaN gives false.
inline bool cerchio_lontano_dal_riquadro(double xc, double yc, double raggio, double x1, double y1, double x2,
                                         double y2) {
  const double g = distacco(xc, yc, x1, y1, x2, y2);
  const double r2 = raggio * raggio;
  return g > 0 && g * g > r2 + margine_relativo * (xc * xc + yc * yc + r2 + g * g) + margine_minimo;
}

}  // namespace trelvo
