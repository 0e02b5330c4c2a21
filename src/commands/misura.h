// The measure between two points.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Writes distance and angle of the points of the record; the command goes on from the same first point.
void esegui_distanza(distipo& doc, int& n);

}  // namespace trelvo
