// The preview of an edit command at its last step.
#pragma once

#include <string>

#include "view/banda.h"

namespace trelvo {

// Paints the selected objects in their own colours where "Sposta", "Copia", "Stira", "Ruota" or "Specchio" would put
// them, in place of the last such painting; other names do nothing. The objects stay as they are. "Ruota" writes its
// angle to the frame's Text2. The surface must not be drawing on its kept picture.
void anteprima_modifica(distipo& doc, const std::string& comando, const banda& b);

}  // namespace trelvo
