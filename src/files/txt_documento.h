// The import of a text drawing, with its progress window.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Reads the text drawing that the caption names into a new, empty document, and shows all of it. The document goes on
// without a name, and unchanged. Error 53, 57, 70, 75 or 76 for a file that cannot be opened, those of txt_lettura.h,
// 57 for a failed read: the document is then as it was, empty and without a name. An error in writing the settings or
// in painting is raised when all is read.
void leggitxt(distipo& doc);

// The same, with the progress window in front; errors are shown there.
void importa(distipo& doc);

// Links the handlers of the progress window. Once.
void prepara_barprog(trelvobas& bas);

}  // namespace trelvo
