// The scripted face: the whole program without a window system, driven by lines of text.
#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "platform/graphics.h"
#include "platform/printer.h"

namespace trelvo {

// `fogli` makes the sheets that are printed to a file; without it they are dropped.
// 0 when every line ran, 1 at the first that could not (its number and the reason go to `errors`).
int esegui_script(std::istream& righe, std::ostream& uscita, std::ostream& errori, const std::string& cartella,
                  FontService& caratteri, const PdfMaker& fogli = {});

// The same from a file, or from standard input for "-", to standard output and error. 2 if the file cannot be opened.
int esegui_script(const std::string& percorso, const std::string& cartella, FontService& caratteri,
                  const PdfMaker& fogli = {});

}  // namespace trelvo
