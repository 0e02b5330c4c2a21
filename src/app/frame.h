// The frame window: start, end, what its toolbars and labels call.
#pragma once

#include <string>

#include "document/trelvobas.h"

namespace trelvo {

void MDIForm_Load(trelvobas& bas, const std::string& riga);
void Toolbar1_ButtonClick(trelvobas& bas, int strumenti, int pulsante);
// Steps the object snap filter of the active document.
void Label11_Click(trelvobas& bas);
void nascondilinee_cursore(trelvobas& bas);

}  // namespace trelvo
