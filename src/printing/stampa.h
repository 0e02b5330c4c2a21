// Printing: what takes part, the sheet in the dialog, and the paper.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links the dialogs `Geststamp` and `Spesslin`, and adds the command "Selstamp" to the table. Once.
void prepara_stampa(trelvobas& bas);

// The menu item "Stampa": marks what is in view and shows the dialog. Error 482 without a printer.
void apri_stampa(distipo& doc);

// No object takes part.
void inizializ_stampare(disegno& dis);
// The user picks the window to print in the drawing.
void selfinstamp(distipo& doc);
// The dialog that stood aside comes back once no window is being picked any more, however that ended.
void richiama_stampa(trelvobas& bas);
// Draws the sheet in the dialog. Error 482 without a printer, 6 for widths beyond a pen.
void anteprimastampa(distipo& doc);
// Prints the objects that take part at the dialog's scale and origin, one scale unit a millimetre. No object changes.
// False if the user did not want it after all. Error 482 without a printer, 6 for widths beyond a pen and for a scale
// or an origin out of range: the sheet is dropped.
bool stampa(distipo& doc);

}  // namespace trelvo
