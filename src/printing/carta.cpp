#include "printing/carta.h"

#include "model/tavolozza.h"

namespace trelvo {

namespace {

constexpr int indice_bianco = 15;
// Stored thicknesses are ten times the numbers that the user sees.
constexpr double decimi = 10;

}  // namespace

Color colore_carta(Color colore) { return colore == tavolozza(indice_bianco) ? 0 : colore; }

double spessore_carta(const trelvobas& bas, double scala, float spessore, Color colore) {
  const double proprio = scala * spessore;
  if (proprio != 0) return proprio;
  const int indice = indice_tavolozza(colore);
  if (indice < 0) return 0;
  return scala * (bas.spessoristampa[static_cast<std::size_t>(indice)] * decimi);
}

vertice carta::pixel(double X, double Y) const {
  return {superficie.ScaleX(x(X), superficie.ScaleMode, scale_pixels),
          superficie.ScaleY(y(Y), superficie.ScaleMode, scale_pixels)};
}

std::vector<vertice> carta::pixel(std::span<const vertice> punti) const {
  std::vector<vertice> pixel_dei_punti;
  pixel_dei_punti.reserve(punti.size());
  for (const vertice& v : punti) pixel_dei_punti.push_back(pixel(v.x, v.y));
  return pixel_dei_punti;
}

}  // namespace trelvo
