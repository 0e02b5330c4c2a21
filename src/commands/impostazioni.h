// The switches of the drawing aids, and the object snap filter. Each change is written to the settings at once.
#pragma once

#include "document/distipo.h"

namespace trelvo {

constexpr int voce_bordo = 7;

// Item of the menu `aiutdis`: 1 the dialog of the general settings, 4 step, 5 grid, 6 ortho, 7 frame round texts.
void impaiut(distipo& doc, int indice);

// Index in the menu `filtri`: 0 none, 2 start, 3 end, 4 middle, 6 centre.
void impfiltri(distipo& doc, int valore);
// The filter after this one, in the order of the menu.
int filtro_successivo(int valore);

// Text defaults of the document; no frame round texts.
void inizializ_varTesto(distipo& doc);

// Colours and tool tips of the frame's switches, from the document's state.
void mostra_interruttori(distipo& doc);

}  // namespace trelvo
