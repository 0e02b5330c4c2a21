// The dialog `TipoLinea`: defaults of the line family, and the properties of selected lines, polylines and arcs.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links the handlers. Once.
void prepara_TipoLinea(trelvobas& bas);

void mnutipolinea_Click(distipo& doc);

// Each applies the dialog to the document: to the defaults, to the one selected object, or to all selected ones, where
// an attribute that reads "Vari" stays. Errors 6 and 13 for what the dialog holds: nothing has changed then.
void set_carattGenLinee(distipo& doc);
void set_tipoLinea(distipo& doc);
void set_tipoLinee(distipo& doc);
void set_tipoArco(distipo& doc);
void set_tipoArchi(distipo& doc);
void set_tipoPoliLinea(distipo& doc);
void set_tipoPoliLinee(distipo& doc);

// Shows the selected objects of a class in the dialog, if there are any, and leaves none selected. `contatore` becomes
// 1 if there was one.
void proprieta_linee(distipo& doc, int n, int& contatore);
void proprieta_archi(distipo& doc, int n, int& contatore);
void proprieta_polilinee(distipo& doc, int n, int& contatore);

}  // namespace trelvo
