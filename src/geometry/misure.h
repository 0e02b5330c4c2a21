// Derived measures of closed outlines and circles, in drawing units and their squares. No errors.
#pragma once

#include <span>

#include "model/vertice.h"

namespace trelvo {

// With the closing edge; two vertices count their edge twice.
double perimetro(std::span<const vertice> vertici);
// Never negative; a self-crossing outline gives the net area.
double area(std::span<const vertice> vertici);

struct misure_cerchio {
  double raggio;
  double perimet;
  double supf;
};
misure_cerchio misure_di_cerchio(double Xcentro, double Ycentro, double Xpunto, double YPunto);

}  // namespace trelvo
