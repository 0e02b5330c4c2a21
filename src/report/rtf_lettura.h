// Rich text files: what they say is kept as far as a report has it, and their text in any case.
#pragma once

#include <string_view>

#include "report/relazione.h"

namespace trelvo {

// Whether the bytes are those of a rich text file.
bool e_rtf(std::string_view dati);

// Never fails, whatever the bytes are: what makes no sense is passed over. Groups marked as ignorable are left out
// unless known; tables give a line a row with tabs between the cells, notes stand in square brackets where they are
// called, pictures and page headers are left out. Numbers of numbered lists are kept as text.
relazione leggi_rtf(std::string_view dati);

}  // namespace trelvo
