// Start of the edit commands and choice of their way of selecting.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Item of the menu: 3 "Cancella" to 9 "Proprietà Oggetto".
void modifica_Click(distipo& doc, int Index);
// The same for a command that is taken up again: it keeps what it had selected.
void avvia_modifica(distipo& doc, int Index);
// 1 pick, 2 window, 3 crossing window.
void impo_Click(distipo& doc, int Index);
// The mode of the checked item.
const char* modo_scelto(const distipo& doc);

}  // namespace trelvo
