// Mapping between drawing units and the surface's logical units, and the memory of the view.
#pragma once

#include <cstdint>
#include <string>

#include "document/distipo.h"

namespace trelvo {

// The live view, in drawing units.
struct vistaviva {
  double sinistra;
  double alto;
  double destra;
  double basso;
};
vistaviva vista_viva(const distipo& doc);

// Memorises the live view.
void memxin(distipo& doc);

// Sets `rapscala` so that the window (drawing units) fits. Error 11 for a window of no width or height.
void impost_rapscala(distipo& doc, double x1, double y1, double x2, double y2);

// Least number of decimals at which the step pitch has no fractional part, at single precision.
std::int16_t numero_decimali_steps(const distipo& doc);

// The value of a coordinate as the readouts show it: rounded to the decimals of the step while that is on.
double valore_mostrato(const distipo& doc, double v);

// "x,y" by the locale-independent conversion, as they are and as the readouts show them. Drawing units.
std::string coppia(double x, double y);
std::string coppia_mostrata(const distipo& doc, double x, double y);

// Rounds a position in logical units to the step: x down to the pitch, y to the nearest. Only while the step is on.
void arrotonda_allo_step(const distipo& doc, float& x, float& y);

// With ortho on, the end point takes the value of the first point on the axis that it is nearer to.
template <class Numero>
void vincola_orto(const distipo& doc, double x1, double y1, Numero& x2, Numero& y2) {
  if (!doc.imp.orto()) return;
  const double dx = static_cast<double>(x2) - x1;
  const double dy = static_cast<double>(y2) - y1;
  if ((dx < 0 ? -dx : dx) > (dy < 0 ? -dy : dy)) {
    y2 = static_cast<Numero>(y1);
  } else {
    x2 = static_cast<Numero>(x1);
  }
}

}  // namespace trelvo
