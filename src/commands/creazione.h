// The one door into the collections for drawing commands.
#pragma once

#include <string>

#include "document/distipo.h"

namespace trelvo {

// Ends the object in progress of the kind "Superficie", "Polilinea", "Rettangolo", "Linea", "Cerchio" or "Arco": gives
// it the defaults, measures it, paints it, adds it, and empties the cursor. A surface or polyline of fewer than two
// vertices stays in progress and nothing happens.
void aggiungi_oggetto(distipo& doc, const std::string& tipo);

}  // namespace trelvo
