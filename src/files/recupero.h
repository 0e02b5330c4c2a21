// What a save that was broken off leaves behind, and how a user gets it back: the former drawing under its name
// followed by "~", and an unfinished file, which has no right to be read, or nothing, under the name itself.
#pragma once

#include <optional>
#include <string>

#include "platform/desktop.h"

namespace trelvo {

// The latest kept copy of a drawing, if the drawing itself is missing, unfinished or older; empty for none.
std::string copia_recuperabile(const std::string& nome);

// The file that a drawing is to be read from: `nome`, or its copy if there is one to be had and the user wants it.
// Nothing if the user opens neither. A text drawing has no copies.
std::optional<std::string> scegli_sorgente(Desktop& desktop, const std::string& nome);

}  // namespace trelvo
