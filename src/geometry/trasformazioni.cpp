#include "geometry/trasformazioni.h"

#include <cmath>

#include "geometry/angoli.h"
#include "geometry/pigreco.h"

namespace trelvo {

namespace {

double angolo_polare(double ex, double ey, double d) {
  if (d == 0) return 0;
  const double s = ey / d;
  // Where the squares underflow the sine may come out above 1.
  if (std::fabs(s) >= 1) return std::copysign(pigreco / 2, s);
  return angolo_nel_quadrante(arcoseno(s), ex, ey);
}

double angolo_asse(double dx, double dy) {
  if (dx == 0) return dy > 0 ? pigreco / 2 : -pigreco / 2;
  const double w = std::atan(std::fabs(dy / dx));
  if (dx > 0) return dy >= 0 ? w : 2 * pigreco - w;
  return dy <= 0 ? pigreco + w : pigreco - w;
}

}  // namespace

void ruota_punto(double xc, double yc, double radianti, double& x, double& y) {
  const double d = std::sqrt((x - xc) * (x - xc) + (y - yc) * (y - yc));
  double t = radianti + angolo_polare(x - xc, y - yc, d);
  if (std::fabs(t) > 2 * pigreco) t -= 2 * std::floor(t / (2 * pigreco)) * pigreco;
  x = xc + d * std::cos(t);
  y = yc + d * std::sin(t);
}

double variazione_ang_testo(double c, double s) {
  if (c == 0) return s > 0 ? 270 : 90;
  const double a = std::atan(s / c);
  return c > 0 ? -a * 180 / pigreco : (pigreco - a) * 180 / pigreco;
}

double variazione_ang_testo_ruotato(double distanza, double radianti) {
  return variazione_ang_testo(distanza * std::cos(radianti), distanza * std::sin(radianti));
}

specchio::specchio(double x1, double y1, double x2, double y2) : x1_(x1), y1_(y1) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  const double f = angolo_asse(dx, dy);
  // An upright or level axis leaves the other coordinate as it is, to the last digit.
  coseno_ = dx == 0 ? 0 : dy == 0 ? std::copysign(1, dx) : std::cos(f);
  seno_ = dx == 0 ? std::copysign(1, f) : dy == 0 ? 0 : std::sin(f);
}

void specchio::rifletti(double& x, double& y) const {
  const double A = x - x1_;
  const double B = y - y1_;
  const double c = coseno_;
  const double s = seno_;
  x = A * (c * c - s * s) + 2 * B * s * c + x1_;
  y = 2 * A * c * s + B * (s * s - c * c) + y1_;
}

}  // namespace trelvo
