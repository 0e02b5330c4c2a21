#include "geometry/riquadro_testo.h"

#include <cmath>

#include "geometry/pigreco.h"

namespace trelvo {

riquadro_testo vertici_testo(double X1, double Y1, double W, double H, double ang_testo_gradi) {
  const double t = ang_testo_gradi * pigreco / 180;
  const double c = std::cos(t);
  const double s = std::sin(t);
  const double X2 = X1 + W * c;
  const double Y2 = Y1 - W * s;
  return {{X1, X2, X2 + H * s, X1 + H * s}, {Y1, Y2, Y2 + H * c, Y1 + H * c}};
}

}  // namespace trelvo
