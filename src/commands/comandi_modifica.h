// Rows of the table of commands.
#pragma once

#include <vector>

#include "commands/comando.h"

namespace trelvo {

std::vector<comando> comandi_modifica();

// The first corner of a selection window, in drawing units, and the band to the pointer from there on.
void primo_angolo(distipo& doc, double a, double b);
void anteprima_selezione(distipo& doc, double x1, double y1, float& x2, float& y2);

}  // namespace trelvo
