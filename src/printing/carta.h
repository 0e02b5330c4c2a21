// What a drawing is printed with: scale and origin, and the law of widths and colours. Shared by paper and preview.
#pragma once

#include <vector>

#include "document/trelvobas.h"
#include "view/figure.h"

namespace trelvo {

constexpr std::int16_t da_stampare = 1;

// White paper shows no white: it prints black.
Color colore_carta(Color colore);

// The thickness of an outline in sheet units before it becomes a pen's: the object's own, or that of its colour.
double spessore_carta(const trelvobas& bas, double scala, float spessore, Color colore);

// A drawing point on a surface whose ScaleMode is the sheet's unit, in its pixels.
struct carta {
  const Surface& superficie;
  const statostampa& stampa;

  double x(double X) const { return stampa.scalastampa * (X - stampa.origstampax); }
  double y(double Y) const { return stampa.scalastampa * (Y - stampa.origstampay); }
  vertice pixel(double X, double Y) const;
  std::vector<vertice> pixel(std::span<const vertice> punti) const;
};

}  // namespace trelvo
