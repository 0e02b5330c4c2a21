// Selection of objects: by a pick, by a window, by a crossing window, and for a stretch. Points and windows are in
// drawing units; the corners of a window come back in order, the lesser first. Each object that was not selected counts
// in `ntrovati`, gets `stato` -1 and is painted at once; deleted ones are passed over.
#pragma once

#include "document/distipo.h"
#include "view/selezione_mira.h"

namespace trelvo {

// At most one object a class: the first whose outline crosses the pick circle, be it selected already.
void selezionaoggetti(distipo& doc, double X, double Y);

// Objects wholly inside.
void selezfin(distipo& doc, double& x1, double& y1, double& x2, double& y2);

// Objects inside or across the sides. For "Selstamp" they are marked to be printed instead of selected; with no command
// running they are selected unseen.
void selezinters(distipo& doc, double& x1, double& y1, double& x2, double& y2);

// Marks the vertices inside, and selects what has any; texts and circles are selected whole. What is painted shows in
// the colours from before.
void selezintersStira(distipo& doc, double& x1, double& y1, double& x2, double& y2);

int conta_selezionati(const distipo& doc);

}  // namespace trelvo
