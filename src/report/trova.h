// The dialog that looks for a text in the report and replaces it.
#pragma once

#include "platform/controls.h"

namespace trelvo {

struct trovaForm : Form {
  trovaForm() : Form("trova") { Caption = "Trova - Sostituisci"; }
  Label Label1{*this, "Label1", "Trova:"};
  TextBox Text1{*this, "Text1"};
  Label Label2{*this, "Label2", "Sostituisci con:"};
  TextBox Text2{*this, "Text2"};
  CheckBox Check1{*this, "Check1", "Maiuscole/minuscole"};
  Button Command1{*this, "Command1", "Trova successivo"};
  Button Command2{*this, "Command2", "Sostituisci"};
  Button Command3{*this, "Command3", "Sostituisci tutto"};
  Button Command4{*this, "Command4", "Chiudi"};
};

struct videoscritt;

// Links the dialog's handlers. It opens with what is selected, as far as that is a part of one line.
void prepara_trova(videoscritt& v);

}  // namespace trelvo
