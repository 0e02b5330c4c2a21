// The dialog `TipoSuperficie`: defaults of the surface family, and the properties of selected surfaces, rectangles and
// circles.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links the handlers. Once.
void prepara_TipoSuperficie(trelvobas& bas);

void mnutiposup_Click(distipo& doc);

// Each applies the dialog to the document: to the defaults, to the one selected object, or to all selected ones, where
// an attribute that reads "Vari" stays. Errors 6 and 13 for what the dialog holds: nothing has changed then.
void set_carattGenSup(distipo& doc);
void set_tipoSuperficie(distipo& doc);
void set_tipoSuperfici(distipo& doc);
void set_tipoRettangolo(distipo& doc);
void set_tiporettangoli(distipo& doc);
void set_tipoCerchio(distipo& doc);
void set_tipoCerchi(distipo& doc);

// Shows the selected objects of a class in the dialog, if there are any, and leaves none selected. `contatore` becomes
// 1 if there was one.
void proprieta_superfici(distipo& doc, int n, int& contatore);
void proprieta_rettangoli(distipo& doc, int n, int& contatore);
void proprieta_cerchi(distipo& doc, int n, int& contatore);

}  // namespace trelvo
