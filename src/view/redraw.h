// Painting of the whole view.
#pragma once

#include "document/distipo.h"
#include "geometry/intersfin.h"

namespace trelvo {

// Paints every live object that lies in or crosses the view, then background settings, grid and a clean overlay.
void redraw(distipo& doc);

// Sets the background, draws the grid, hides the overlays, recolours the cross.
void impostdistipo(distipo& doc);

// The decision of the crossing selection for one object, the window in drawing units with its corners in order.
bool interseca(distipo& doc, const Linea& o, const finestra& f);
bool interseca(distipo& doc, const Arco& o, const finestra& f);
bool interseca(distipo& doc, const Cerchio& o, const finestra& f);
bool interseca(distipo& doc, const polilinea& o, const finestra& f);
bool interseca(distipo& doc, const Rettangolo& o, const finestra& f);
bool interseca(distipo& doc, const superficie& o, const finestra& f);
bool interseca(distipo& doc, const testo& o, const finestra& f);

}  // namespace trelvo
