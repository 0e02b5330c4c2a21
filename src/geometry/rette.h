// Lines, segments and boxes of the plane, in drawing units. Equality tests are exact where a line is horizontal or
// vertical. Results come back in the caller's variables; flags are 1 for found, 0 for not. No errors.
#pragma once

#include <cmath>
#include <cstdint>
#include <utility>

namespace trelvo {

// Limit on a cross product, so in square drawing units: it depends on no length and no zoom.
constexpr double limite_allineamento = 0.0001;
// An intersection farther out than this in x or y counts as none.
constexpr double limite_intersezione = 50000000000;

// Infinite lines through points 1, 2 and 3, 4. X, Y may be written with a flag of 0, or keep what they held.
void detintersrette(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4, double& X,
                    double& Y, std::int16_t& flag);

// Segments, ends included. X, Y are written with a flag of 1 only.
void detinters_segmenti(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4,
                        double& X, double& Y, std::int16_t& flag);

// Whether the point lies on the segment: exactly on a horizontal or vertical one, within the limit on a sloping one.
inline bool detPinsegmento(double Px, double Py, double x1, double y1, double x2, double y2) {
  if (y1 == y2) {
    if (Py != y1) return false;
    if ((x1 <= Px && Px <= x2) || (x2 <= Px && Px <= x1)) return true;
  }
  if (x1 == x2) {
    if (Px != x1) return false;
    if ((y1 <= Py && Py <= y2) || (y2 <= Py && Py <= y1)) return true;
  }
  if (std::fabs((Py - y1) * (x2 - x1) - (Px - x1) * (y2 - y1)) >= limite_allineamento) return false;
  const bool in_x = (x1 <= Px && Px <= x2) || (x2 <= Px && Px <= x1);
  const bool in_y = (y1 <= Py && Py <= y2) || (y2 <= Py && Py <= y1);
  return in_x && in_y;
}

// Whether the point lies in the box, bounds included. Puts the corners in order, and leaves them so in the caller.
inline bool detPinRettangolo(double Px, double Py, double& x1, double& y1, double& x2, double& y2) {
  if (x1 > x2) std::swap(x1, x2);
  if (y1 > y2) std::swap(y1, y2);
  return x1 <= Px && Px <= x2 && y1 <= Py && Py <= y2;
}

}  // namespace trelvo
