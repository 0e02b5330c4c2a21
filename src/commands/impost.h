// The dialog of the general settings, and the palette dialog that it opens.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links the handlers of both dialogs. Once.
void prepara_impost(trelvobas& bas);

// Fills the dialog from a document and shows it.
void mostra_impost(distipo& doc);

// Takes the dialog's values over into the document. Error 6 or 9 for values that have no place there: nothing changes.
void aggimpostgen(distipo& doc);

}  // namespace trelvo
