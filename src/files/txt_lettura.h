// Reads the text form of a drawing.
#pragma once

#include "files/impostazioni_lette.h"
#include "files/txt_avanzamento.h"
#include "files/txt_righe.h"
#include "model/disegno.h"
#include "platform/numbers.h"

namespace trelvo {

// The six values at the head. Numbers have a point, whatever the regional settings. Error 62 if one is missing, 9 for a
// colour off the palette, 6 for a pitch out of range.
impostazionilette leggi_testata_txt(righetxt& righe);

// Adds to `dis` the objects of all lines to come; whether there was one. Coordinates are in drawing units, numbers by
// the regional settings. Error 13 for a line that is no number, 6 for one that its field cannot hold, 9 for a vertex
// count below 0, 62 for an end in the midst of an object; the object that fails is not added.
bool leggi_oggetti_txt(righetxt& righe, const RegionalFormat& formato, avanzamento& letto, disegno& dis);

}  // namespace trelvo
