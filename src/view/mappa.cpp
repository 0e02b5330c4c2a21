#include "view/mappa.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace trelvo {

namespace {

// The scale for a window that gives none.
constexpr double rapscala_minima = 1e-13;

// A window that grew at the end of the range sees further than a drawing file can tell.
float memorizzabile(double valore) {
  constexpr double massimo = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(valore, -massimo, massimo));
}

}  // namespace

vistaviva vista_viva(const distipo& doc) {
  const Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  return {s.ScaleLeft / scala, s.ScaleTop / scala, (static_cast<double>(s.ScaleWidth) + s.ScaleLeft) / scala,
          (static_cast<double>(s.ScaleHeight) + s.ScaleTop) / scala};
}

void memxin(distipo& doc) {
  const Surface& s = doc.surface;
  statovista& v = doc.vista;
  v.xminvis = memorizzabile(s.ScaleLeft / v.rapscala);
  v.yminvis = memorizzabile(s.ScaleTop / v.rapscala);
  v.larghezzavis = memorizzabile(s.ScaleWidth / v.rapscala);
  v.altezzavis = memorizzabile(s.ScaleHeight / v.rapscala);
}

void impost_rapscala(distipo& doc, double x1, double y1, double x2, double y2) {
  if (x2 == x1 || y2 == y1) throw RuntimeError(error_division);
  const double sx = doc.surface.ScaleWidth / (x2 - x1);
  const double sy = doc.surface.ScaleHeight / (y2 - y1);
  double scala = sx > sy ? sy : sx;
  if (scala == 0) scala = rapscala_minima;
  if (!std::isfinite(scala)) throw RuntimeError(error_overflow);
  doc.vista.rapscala = scala;
}

std::int16_t numero_decimali_steps(const distipo& doc) {
  const float passo = doc.imp.passostep;
  if (!std::isfinite(passo)) return 0;
  std::int16_t n = 0;
  auto intero = static_cast<float>(std::floor(static_cast<double>(passo)));
  for (;;) {
    const double multiplo = std::pow(10.0, n) * passo;
    if (intero == static_cast<float>(multiplo)) return n;
    ++n;
    intero = static_cast<float>(std::floor(0.0001 + std::pow(10.0, n) * passo));
  }
}

double valore_mostrato(const distipo& doc, double v) {
  if (!doc.imp.step() || doc.imp.passostep == 0) return v;
  const double potenza = std::pow(10.0, numero_decimali_steps(doc));
  return round_even(potenza * v) / potenza;
}

std::string coppia(double x, double y) { return number_text(x) + "," + number_text(y); }

std::string coppia_mostrata(const distipo& doc, double x, double y) {
  return coppia(valore_mostrato(doc, x), valore_mostrato(doc, y));
}

void arrotonda_allo_step(const distipo& doc, float& x, float& y) {
  if (!doc.imp.step() || doc.imp.passostep == 0) return;
  const double scala = doc.vista.rapscala;
  const double passo = doc.imp.passostep;
  x = static_cast<float>(std::floor(x / scala / passo) * passo * scala);
  y = static_cast<float>(std::floor((y / scala + passo / 2) / passo) * passo * scala);
}

}  // namespace trelvo
