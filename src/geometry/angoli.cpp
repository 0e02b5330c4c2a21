#include "geometry/angoli.h"

#include <cmath>

#include "geometry/pigreco.h"

namespace trelvo {

double arcoseno(double seno) { return std::atan(seno / std::sqrt(1 - seno * seno)); }

double angolo_nel_quadrante(double arco, double dx, double dy) {
  if (dx > 0) return dy > 0 ? arco : 2 * pigreco + arco;
  return dy < 0 ? 3 * pigreco - arco : pigreco - arco;
}

double detAngolo(double x0, double y0, double x1, double y1) {
  const double dx = x1 - x0;
  const double dy = y1 - y0;
  const double d = std::sqrt(dx * dx + dy * dy);
  if (d == 0) return 0;
  const double s = dy / d;
  // Where the squares underflow the sine may come out above 1.
  if (std::fabs(s) >= 1) return s > 0 ? pigreco / 2 : 3 * pigreco / 2;
  double angolo = angolo_nel_quadrante(arcoseno(s), dx, dy);
  if (angolo >= 2 * pigreco) angolo -= 2 * std::floor(angolo / (2 * pigreco)) * pigreco;
  return angolo;
}

double angolo_retta_P1P2(double x1, double y1, double x2, double y2) { return detAngolo(x1, y1, x2, y2); }

bool detPinArco(double Px, double Py, double Xc, double Yc, double xa, double ya, double xb, double yb) {
  const double Ap = detAngolo(Xc, Yc, Px, Py);
  double Aa = detAngolo(Xc, Yc, xa, ya);
  const double Ab = detAngolo(Xc, Yc, xb, yb);
  bool avvolto = ya >= yb;
  if (ya == yb && xa > xb && Aa == 0) {
    Aa = 2 * pigreco;
    avvolto = false;
  }
  if (avvolto) return Ap <= Aa || Ap >= Ab;
  return Ab <= Ap && Ap <= Aa;
}

}  // namespace trelvo
