// Reports as rich text files.
#pragma once

#include <string>

#include "report/relazione.h"

namespace trelvo {

// Seven-bit text. Half points, in which a file raises and lowers text, do not give every number of twips: beside the
// nearest of them an ignorable group tells the exact offset, for `leggi_rtf`.
std::string scrivi_rtf(const relazione& testo);

}  // namespace trelvo
