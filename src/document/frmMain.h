// The frame window: toolbars, command line, status strip, and the menu that stands while no document is open.
#pragma once

#include "platform/controls.h"
#include "platform/desktop.h"

namespace trelvo {

// A band of the rebar; widths in twips.
struct Banda : Control {
  Banda(Form& owner, std::string control, int position, std::string caption, std::string key);
  Property<std::string> Caption;
  Property<std::string> Key;
  Property<float> MinWidth{*this, "MinWidth", 0};
  Property<float> Width{*this, "Width", 0};
  Property<bool> NewRow{*this, "NewRow", false};
};

struct frmMainForm : Form {
  frmMainForm();

  PictureBox CoolBar1{*this, "CoolBar1"};
  ControlArray<Banda> Bands;
  ControlArray<Toolbar> Toolbar1;

  PictureBox Picture2{*this, "Picture2"};
  Label Label1{*this, "Label1"};
  TextBox Text1{*this, "Text1"};
  Label Label2{*this, "Label2"};
  TextBox Text2{*this, "Text2"};

  PictureBox Picture1{*this, "Picture1"};
  Label Label3{*this, "Label3", "rapscala_disegno"};
  TextBox Text3{*this, "Text3"};
  TextBox Text4{*this, "Text4"};
  TextBox Text5{*this, "Text5"};
  TextBox Text6{*this, "Text6"};
  TextBox Text7{*this, "Text7"};
  Label Label8{*this, "Label8", "Step(F6)"};
  Label Label9{*this, "Label9", "Griglia(F7)"};
  Label Label10{*this, "Label10", "Orto(F8)"};
  Label Label11{*this, "Label11", "Libero(F9)"};

  MenuItem file{*this, "file", no_index, "&File", nullptr};
  ControlArray<MenuItem> gestfile;

  CommonDialog CommonDialog1;
};

}  // namespace trelvo
