// The dialog of one vertex, and of centre and radius of a circle. The caption of Command1 is the action.
#pragma once

#include <functional>

#include "platform/controls.h"

namespace trelvo {

struct CoordVertForm : Form {
  CoordVertForm() : Form("CoordVert") { azzera(); }

  Frame Frame4{*this, "Frame4", ""};
  Label Label10{*this, "Label10"};
  TextBox Text1{*this, "Text1"};
  Label Label11{*this, "Label11"};
  TextBox Text2{*this, "Text2"};
  // Of a circle alone.
  Frame Frame1{*this, "Frame1", "Raggio Cerchio"};
  Label Label12{*this, "Label12", "R ="};
  TextBox Text3{*this, "Text3"};
  Button Command1{*this, "Command1", ""};
  Button Command2{*this, "Command2", "Esci"};

  // Given by the dialog that shows it: takes the boxes over once they have passed the test.
  std::function<void()> registra;

  void azzera() {
    Caption = "Coordinate Vertice";
    Frame4.Caption = "Coordinate vertice N.i";
    Label10.Caption = "X =";
    Label11.Caption = "Y =";
    for (TextBox* casella : {&Text1, &Text2, &Text3}) {
      casella->Text = "";
      casella->Locked = false;
    }
    for (Control* raggio : std::initializer_list<Control*>{&Frame1, &Label12, &Text3}) raggio->Visible = false;
    registra = {};
  }
};

}  // namespace trelvo
