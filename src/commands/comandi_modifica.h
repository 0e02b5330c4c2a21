// Rows of the table of commands.
#pragma once

#include <vector>

#include "commands/comando.h"

namespace trelvo {

std::vector<comando> comandi_modifica();

}  // namespace trelvo
