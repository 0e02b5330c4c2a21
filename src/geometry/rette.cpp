#include "geometry/rette.h"

namespace trelvo {

namespace {

bool nei_limiti(double x, double y, double x1, double y1, double x2, double y2) {
  return ((x1 <= x && x <= x2) || (x2 <= x && x <= x1)) && ((y1 <= y && y <= y2) || (y2 <= y && y <= y1));
}

}  // namespace

// Slopes are dx / dy, so that a vertical line is an ordinary case and a horizontal one the singular one.
void detintersrette(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4, double& X,
                    double& Y, std::int16_t& flag) {
  flag = 1;
  // Differences come before products: so the digits of the point are not lost to the slope of a nearly level line.
  if (y1 == y2) {
    if (y3 != y4) {
      const double m2 = (x4 - x3) / (y4 - y3);
      Y = y1;
      X = x3 + m2 * (y1 - y3);
    } else {
      flag = 0;
    }
  } else if (y3 == y4) {
    const double m1 = (x2 - x1) / (y2 - y1);
    Y = y3;
    X = x1 + m1 * (y3 - y1);
  } else {
    const double m1 = (x2 - x1) / (y2 - y1);
    const double m2 = (x4 - x3) / (y4 - y3);
    if (m1 != m2) {
      Y = y3 + ((x3 - x1) + m1 * (y1 - y3)) / (m1 - m2);
      X = x1 + m1 * (Y - y1);
    } else {
      flag = 0;
    }
  }
  if (std::fabs(X) > limite_intersezione || std::fabs(Y) > limite_intersezione) flag = 0;
}

void detinters_segmenti(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4,
                        double& X, double& Y, std::int16_t& flag) {
  flag = 0;
  double x = 0;
  double y = 0;
  std::int16_t trovata = 0;
  detintersrette(x1, y1, x2, y2, x3, y3, x4, y4, x, y, trovata);
  if (trovata != 1) return;
  // The point lies on both lines: what rounding makes of it on a long one is no reason to lose it.
  if (!nei_limiti(x, y, x1, y1, x2, y2) || !nei_limiti(x, y, x3, y3, x4, y4)) return;
  X = x;
  Y = y;
  flag = 1;
}

}  // namespace trelvo
