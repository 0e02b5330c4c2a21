#include "geometry/cerchi.h"

#include <cmath>

#include "geometry/rette.h"
#include "platform/runtime_error.h"

namespace trelvo {

namespace {

double radice(double valore) {
  if (valore < 0) throw RuntimeError(error_bad_call);
  return std::sqrt(valore);
}

}  // namespace

void risolvi2grado(double a, double b, double c, double& discriminante, double& x1, double& x2) {
  discriminante = b * b - 4 * a * c;
  if (!(discriminante >= 0)) return;
  const double radice_d = std::sqrt(discriminante);
  x1 = ((-b + radice_d) / 2) / a;
  x2 = discriminante > 0 ? ((-b - radice_d) / 2) / a : x1;
}

void detinters_cerchio_segmento(double Xc, double Yc, double R, double x1, double y1, double x2, double y2, double& IX1,
                                double& IY1, double& IX2, double& IY2, std::int16_t& flag1, std::int16_t& flag2) {
  flag1 = 0;
  flag2 = 0;
  double d = 0;
  if (x1 == x2) {
    risolvi2grado(1, -2 * Yc, (x1 - Xc) * (x1 - Xc) + Yc * Yc - R * R, d, IY1, IY2);
    IX1 = x1;
    IX2 = x1;
  }
  if (y1 == y2) {
    risolvi2grado(1, -2 * Xc, (y1 - Yc) * (y1 - Yc) + Xc * Xc - R * R, d, IX1, IX2);
    IY1 = y1;
    IY2 = y1;
  }
  if (x1 != x2 && y1 != y2) {
    // Counted from the first end: so the digits of the point are not lost to the slope of a steep line.
    const double m = (y2 - y1) / (x2 - x1);
    const double xc = Xc - x1;
    const double yc = Yc - y1;
    double u1 = 0;
    double u2 = 0;
    risolvi2grado(1 + m * m, -2 * (xc + m * yc), xc * xc + yc * yc - R * R, d, u1, u2);
    IX1 = x1 + u1;
    IX2 = x1 + u2;
    IY1 = y1 + m * u1;
    IY2 = y1 + m * u2;
  }
  if (d >= 0) {
    if (detPinsegmento(IX1, IY1, x1, y1, x2, y2)) flag1 = 1;
    if (detPinsegmento(IX2, IY2, x1, y1, x2, y2)) flag2 = 1;
  }
}

bool cerchi_secanti(double Xa, double Ya, double Ra, double Xb, double Yb, double Rb, double& IX1, double& IX2) {
  const double dx = Xb - Xa;
  const double dy = Yb - Ya;
  const double D2 = dx * dx + dy * dy;
  if (D2 <= Rb * Rb && Ra < Rb) return false;
  if (D2 == 0) return true;
  // Sixteen times the square of the area of the triangle of the centres and a point: circles whose centres are nearly
  // level lose no digits in it.
  const double d = ((Ra + Rb) * (Ra + Rb) - D2) * (D2 - (Ra - Rb) * (Ra - Rb));
  if (!(d >= 0)) return false;
  const double lungo = (D2 + Ra * Ra - Rb * Rb) / 2;
  const double largo = std::sqrt(d) / 2;
  // The larger one first.
  const double origine = dy != 0 ? Xa : Ya;
  const double mezzo = (dy != 0 ? dx : dy) * lungo;
  const double scarto = std::fabs(dy != 0 ? dy : dx) * largo;
  IX1 = origine + (mezzo + scarto) / D2;
  IX2 = origine + (mezzo - scarto) / D2;
  return true;
}

void detinters_cerchio_cerchio(double Xa, double Ya, double Ra, double Xb, double Yb, double Rb, std::int16_t& flag,
                               double& IX1, double& IY1, double& IX2, double& IY2) {
  flag = cerchi_secanti(Xa, Ya, Ra, Xb, Yb, Rb, IX1, IX2) ? 1 : 0;
  if (flag == 0) return;
  IY1 = Yb + radice(Rb * Rb - (IX1 - Xb) * (IX1 - Xb));
  IY2 = Yb + radice(Rb * Rb - (IX2 - Xb) * (IX2 - Xb));
}

void cerchio_per_tre_punti(double p1x, double p1y, double p2x, double p2y, double p3x, double p3y, double& Xc,
                           double& Yc, double& R) {
  // Seen from the first point: the squares of far coordinates would leave no digits for the arc.
  const double x2 = p2x - p1x;
  const double y2 = p2y - p1y;
  const double x3 = p3x - p1x;
  const double y3 = p3y - p1y;
  const double D = x2 * y3 - x3 * y2;
  if (D == 0) return;
  const double S2 = x2 * x2 + y2 * y2;
  const double S3 = x3 * x3 + y3 * y3;
  const double x = (y3 * S2 - y2 * S3) / D / 2;
  const double y = (x2 * S3 - x3 * S2) / D / 2;
  Xc = p1x + x;
  Yc = p1y + y;
  R = std::sqrt(x * x + y * y);
}

}  // namespace trelvo
