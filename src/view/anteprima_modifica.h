// The selected objects as an edit command would leave them, painted at the pointer's moves.
#pragma once

#include <string>

#include "document/distipo.h"
#include "view/banda.h"

namespace trelvo {

// Clears the surface (its transient layer, at this step) and paints the transformed objects in their own colours. The
// objects themselves are not touched. `comando` is "Sposta", "Copia", "Stira", "Ruota" or "Specchio".
void anteprima_modifica(distipo& doc, const std::string& comando, const banda& b);

}  // namespace trelvo
