// Zooms and scrolling. World rectangles are in drawing units, x1 < x2 and y1 < y2.
#pragma once

#include <string>

#include "document/distipo.h"

namespace trelvo {

// Fits a rectangle into the window and repaints. A zoom command on the level leaves it in the history.
// Error 6 or 11 for a rectangle that has no scale; nothing has changed then.
void selzoom(distipo& doc, double x1, double y1, double x2, double y2);

// The menu: 1 "Zoom Area", 2 "Zoom Tutto", 3 "Zoom Prec."; 4 only puts the running command aside for the dialog.
void selezoom_Click(distipo& doc, int Index);
// Takes the percentage from the dialog's text.
void zoomperc(distipo& doc, const std::string& percentuale);

// Extents of all objects that are not deleted, and of the origin.
void determxymin_xymax(distipo& doc);

// Both scroll bars back to their middle.
void impscroll(distipo& doc);
void HScroll1_Change(distipo& doc);
void VScroll1_Change(distipo& doc);

}  // namespace trelvo
