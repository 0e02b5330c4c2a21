#include "geometry/misure.h"

#include <cmath>

#include "geometry/pigreco.h"

namespace trelvo {

namespace {

double lunghezza(const vertice& a, const vertice& b) {
  return std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y));
}

double trapezio(const vertice& a, const vertice& b) { return (a.x * b.y - a.y * b.x) / 2; }

}  // namespace

double perimetro(std::span<const vertice> vertici) {
  if (vertici.empty()) return 0;
  double somma = 0;
  for (std::size_t i = 1; i < vertici.size(); ++i) somma += lunghezza(vertici[i - 1], vertici[i]);
  return somma + lunghezza(vertici.front(), vertici.back());
}

double area(std::span<const vertice> vertici) {
  if (vertici.empty()) return 0;
  double somma = 0;
  for (std::size_t i = 1; i < vertici.size(); ++i) somma += trapezio(vertici[i - 1], vertici[i]);
  return std::fabs(somma + trapezio(vertici.back(), vertici.front()));
}

misure_cerchio misure_di_cerchio(double Xcentro, double Ycentro, double Xpunto, double YPunto) {
  const double raggio = lunghezza({Xcentro, Ycentro}, {Xpunto, YPunto});
  return {raggio, 2 * pigreco * raggio, pigreco * (raggio * raggio)};
}

}  // namespace trelvo
