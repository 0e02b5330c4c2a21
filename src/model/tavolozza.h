// The palette of 16 colours.
#pragma once

#include <cstdint>

#include "platform/graphics.h"

namespace trelvo {

constexpr int numero_colori = 16;

// Error 9 for an index outside 0 to 15.
Color tavolozza(int indice);

// The index of a colour, or -1.
int indice_tavolozza(Color colore);

// The name that the dialogs show.
const char* nome_colore(int indice);

}  // namespace trelvo
