// "Crea DXF".
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Asks for a name and writes the drawing there. Whatever fails is told in a message when all has been tried; what could
// be written stays. Heights are flipped at `ymaxdis` as it was left.
void crea_dxf(distipo& doc);

}  // namespace trelvo
