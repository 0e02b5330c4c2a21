// What the file system refuses, as run-time errors.
#pragma once

#include <string>

#include "platform/runtime_error.h"

namespace trelvo {

// Error 52 for a name that no file can have.
void verifica_nome(const std::string& nome);

// Opening, making or renaming `nome` failed with the system's error `codice`.
RuntimeError errore_apertura(int codice, const std::string& nome);

// A read or write of an open file failed with `codice`; `dettaglio` goes into the message.
RuntimeError errore_trasferimento(int codice, const std::string& dettaglio = {});

}  // namespace trelvo
