// The pointer over the drawing: every move and click passes here. Positions in logical units, as the surface has them.
#pragma once

#include "document/distipo.h"

namespace trelvo {

void Form_MouseMove(distipo& doc, float X, float Y);
// Button 1 is the left one.
void Form_MouseDown(distipo& doc, int Button, float X, float Y);

// Step, cross, snap, readouts, pick box, entry fields, rubber band; x and y come back rounded or snapped.
void mousesposta(distipo& doc, float& x, float& y);

// Sends the last move again, at the same place of the window.
void ripeti_mouse(distipo& doc);

}  // namespace trelvo
