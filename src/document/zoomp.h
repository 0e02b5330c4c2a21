// The dialog of the zoom percentage.
#pragma once

#include "platform/controls.h"

namespace trelvo {

struct zoompForm : Form {
  zoompForm() : Form("zoomp") {
    Caption = "Zoom";
    VScroll1.Max = 32767;
  }
  Label Label1{*this, "Label1", "Percentuale zoom"};
  TextBox Text1{*this, "Text1"};
  ScrollBar VScroll1{*this, "VScroll1"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};
};

}  // namespace trelvo
