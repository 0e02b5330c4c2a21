// The file commands of a document and of the frame.
#pragma once

#include <string>

#include "document/trelvobas.h"

namespace trelvo {

void nuovodisegno(trelvobas& bas);

// Item of the menu `opfile`; of the frame's own `gestfile`.
void opfile_Click(distipo& doc, int Index);
void gestfile_Click(trelvobas& bas, int Index);

// Saves the active document: "Salva" or "SalvaConNome".
void salva(trelvobas& bas, const std::string& comando);
// Reads a file into the active document, which has just been made for it.
void apri(trelvobas& bas);

}  // namespace trelvo
