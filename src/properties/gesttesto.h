// The dialog `Gesttesto`, and the command "Testo" that opens it.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links the handlers and adds the command to the table. Once.
void prepara_Gesttesto(trelvobas& bas);

// Fills the dialog from the document's text defaults.
void impost_gesttesto(distipo& doc);
void mnutipotesto_Click(distipo& doc);

// Adds the text that is being placed, or gives the dialog's values to the selected texts, where what reads "Vari"
// stays. Errors 6 and 13 for what the dialog holds: nothing has changed then.
void aggtesto(distipo& doc);
// Takes the dialog over into the document's text defaults, and writes the settings.
void set_carattGenTesto(distipo& doc);

// Shows the selected texts in the dialog, if there are any, and leaves none selected. `contatore` becomes 1 if there
// was one.
void proprieta_testi(distipo& doc, int n, int& contatore);

}  // namespace trelvo
