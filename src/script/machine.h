// A program without a window system, and what drives it by lines.
#pragma once

#include <ostream>
#include <string>

#include "app/app.h"
#include "script/runner.h"

namespace trelvo {

struct Machine {
  // Prints to `printed`; the settings lie in `folder`. `sheets` makes what is printed to a file.
  Machine(std::ostream& printed, const std::string& folder, FontService& fonts, const PdfMaker& sheets = {})
      : output(printed), desktop(output, fonts, sheets), bas(desktop, folder) {
    desktop.use_dialog = [this](const Form& form) { runner.use_dialog(form); };
    desktop.document_made = [this](distipo& doc) { watch_document(session, doc); };
    prepara(bas);
  }

  Output output;
  DesktopScript desktop;
  trelvobas bas;
  Session session{bas, desktop, output};
  Runner runner{session};
};

}  // namespace trelvo
