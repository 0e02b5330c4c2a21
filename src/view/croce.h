// The program's own cursor and the readouts of its position. Positions in logical units.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Moves the cross; at its first move it takes a twentieth of the surface's width for its length.
void sposta_croce(distipo& doc, float x, float y);
void mostra_croce(distipo& doc, bool visibile);

// "Text3" and "Text4" of the frame.
void scrivi_coordinate(distipo& doc, float x, float y);

// Centres the pick box, the snap marker.
void sposta_mira(distipo& doc, float x, float y);
void sposta_segno(distipo& doc, float x, float y);

}  // namespace trelvo
