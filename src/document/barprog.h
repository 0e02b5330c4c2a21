// The window that shows how far an import has come.
#pragma once

#include "platform/controls.h"

namespace trelvo {

struct barprogForm : Form {
  barprogForm() : Form("barprog") { Caption = "Trelvo -        Attendere . . . . Importo  File"; }
  Label Label1{*this, "Label1"};  // what is to be done once the window is up
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
};

}  // namespace trelvo
