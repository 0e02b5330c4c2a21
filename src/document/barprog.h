// The window that shows how far an import or a long print has come.
#pragma once

#include <functional>

#include "platform/controls.h"

namespace trelvo {

struct barprogForm : Form {
  static constexpr const char* titolo_importo = "Trelvo -        Attendere . . . . Importo  File";
  barprogForm() : Form("barprog") { Caption = titolo_importo; }
  Label Label1{*this, "Label1"};  // what is to be done once the window is up
  ProgressBar ProgressBar1{*this, "ProgressBar1"};

  // Work other than an import, given before the window is shown and forgotten when it goes.
  std::function<void()> lavoro;
};

}  // namespace trelvo
