// "Crea BMP".
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Asks for a name and writes the kept picture there, with 24 bits a pixel. A file that cannot be opened is passed over
// without a message. Error 57 or 61 if the writing fails: the file is then empty.
void creabmp(distipo& doc);

}  // namespace trelvo
