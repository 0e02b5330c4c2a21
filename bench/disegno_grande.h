// Big drawings of all classes, three fifths of them lines, spread evenly over a sheet.
#pragma once

#include <random>
#include <string>

#include "document/distipo.h"

namespace trelvo {

// Of 3 by 2. One object has on average a square of this side.
inline constexpr double passo_oggetti = 30;

struct foglio {
  double larghezza;
  double altezza;
};
foglio foglio_per(int numero);

// Objects about as large as the room that each has, times a factor.
void riempi(distipo& doc, int numero, bool solo_linee, double fattore = 1);

}  // namespace trelvo
