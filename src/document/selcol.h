// The dialog that picks one of the palette's colours.
#pragma once

#include "model/tavolozza.h"
#include "platform/controls.h"

namespace trelvo {

struct SelcolForm : Form {
  SelcolForm() : Form("Selcol") {
    Caption = "Seleziona colore";
    for (int i = 0; i < numero_colori; ++i) {
      Option1.add(*this, "Option1", i);
      Option1(i).Caption = nome_colore(i);
      Text1.add(*this, "Text1", i);
      Text1(i).Locked = true;
    }
  }
  Label Label1{*this, "Label1"};
  ControlArray<OptionButton> Option1;
  ControlArray<TextBox> Text1;
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};
};

}  // namespace trelvo
