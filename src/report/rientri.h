// The dialog of the indents of paragraphs, in centimetres.
#pragma once

#include "platform/controls.h"

namespace trelvo {

struct rientriForm : Form {
  rientriForm() : Form("rientri") { Caption = "Rientri Paragrafo"; }
  Label Label1{*this, "Label1", "Sinistro (cm):"};
  TextBox Text1{*this, "Text1"};
  Label Label2{*this, "Label2", "Destro (cm):"};
  TextBox Text2{*this, "Text2"};
  Label Label3{*this, "Label3", "Prima riga (cm):"};
  TextBox Text3{*this, "Text3"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};
};

struct videoscritt;

// Links the dialog's handlers. It opens with the indents of the first selected paragraph, and gives all of them those
// that it is confirmed with; a text that is no number raises error 13, an indent beyond 50 cm error 6.
void prepara_rientri(videoscritt& v);

}  // namespace trelvo
