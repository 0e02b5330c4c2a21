// The name of a file to be written.
#pragma once

#include <string>

#include "platform/desktop.h"

namespace trelvo {

// Shows a save dialog with the proposed name, again and again until the user names a new file or agrees to have one
// replaced. Empty: the user gave up.
std::string chiedi_nome(Desktop& desktop, CommonDialog& dialogo, const std::string& proposto = {});

}  // namespace trelvo
