// The property dialogs, and the command "Proprietà Oggetto" that shows them on the selected objects.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links all dialogs and hands what shows them, class by class, to the command engine. Once.
void prepara_proprieta(trelvobas& bas);

}  // namespace trelvo
