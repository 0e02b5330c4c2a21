// The bytes of a file as a report.
#pragma once

#include <string_view>

#include "report/relazione.h"

namespace trelvo {

// Rich text, or plain text in UTF-8, or else in the code page.
relazione leggi_relazione(std::string_view dati);

}  // namespace trelvo
