// What the edit commands do to the selected objects: "Cancella", "Sposta", "Copia", "Stira", "Ruota", "Specchio".
//
// Each routine applies the command of the record at level n to every selected object of its class, in collection order,
// sets `contatore` to 1 if there was one, and leaves none selected. The points are in drawing units; "Ruota" has its
// angle in x2, in degrees. Copies and mirror images go to the end of the collection, and the source stays; they take
// the look of the source and its shape, but neither Layer nor stampare, and no stretch mark. Nothing is painted. Error
// 6 for points too far apart or an angle too large: no object has changed then.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Measures are recomputed by a stretch only.
void eseguiComandoModifica_su_Superfici(distipo& doc, int n, int& contatore);
void eseguiComandoModifica_su_Linee(distipo& doc, int n, int& contatore);
// Any quadrilateral after a rotation or a stretch; measures as for surfaces.
void eseguiComandoModifica_su_Rettangoli(distipo& doc, int n, int& contatore);
// A mirror image is readable at the angle of its source.
void eseguiComandoModifica_su_Testi(distipo& doc, int n, int& contatore);
// The point on the rim comes back to the right of the centre; the radius stays exact.
void eseguiComandoModifica_su_Cerchi(distipo& doc, int n, int& contatore);
// In a stretch of several arcs each one after the first moves from the centre of the one before.
void eseguiComandoModifica_su_Archi(distipo& doc, int n, int& contatore);
void eseguiComandoModifica_su_Polilinee(distipo& doc, int n, int& contatore);

// Hands the seven routines, in this order, to the command engine. Once.
void aggiungi_modifiche(trelvobas& bas);

}  // namespace trelvo
