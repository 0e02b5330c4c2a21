// The two commands that collect vertices until a right click: "Polilinea" and "Superficie".
#pragma once

#include "commands/comando.h"

namespace trelvo {

comando riga_polilinea();
comando riga_superficie();

}  // namespace trelvo
