// The commands that open and save a drawing.
#pragma once

#include <functional>
#include <string>

#include "document/trelvobas.h"

namespace trelvo {

// Whether a file of this name is read as a text drawing: other cases of the ending are drawing files.
bool testo_di_disegno(const std::string& nome);

// What the file commands need of the floor above.
struct servizifile {
  std::function<void(distipo&)> scarica;  // unloads a document window
  std::function<void(distipo&)> importa;  // reads the text drawing that the caption names, with its progress window
};

// A caption that holds no file name yet, and that of the document of a running number.
bool senza_nome(const std::string& titolo);
std::string titolo_senza_nome(int numero);

// The document, the last one opened, has the file of this name: it counts as in use.
void registra_nome(distipo& doc, const std::string& nome);

// `comando` is "Apri", "Salva" or "SalvaConNome", for the document in front. "Apri" reads into that document, which is
// new, and has it unloaded if nothing is opened. What cannot be opened or written is no error and gives no message; an
// error in the midst of reading or writing comes through.
void aprisalvadisegno(trelvobas& bas, const std::string& comando, const servizifile& servizi);

}  // namespace trelvo
