// The dialog of the print thickness of each palette colour.
#pragma once

#include "model/tavolozza.h"
#include "platform/controls.h"

namespace trelvo {

struct SpesslinForm : Form {
  SpesslinForm() : Form("Spesslin") {
    Caption = "Spessore Linee x Stampa";
    for (int i = 0; i < numero_colori; ++i) {
      Picture3.add(*this, "Picture3", i);
      Text1.add(*this, "Text1", i);
      nomi.push_back(std::make_unique<Label>(*this, "Label" + std::to_string(i + 1), nome_colore(i)));
    }
  }
  ControlArray<PictureBox> Picture3;
  ControlArray<TextBox> Text1;
  std::vector<std::unique_ptr<Label>> nomi;  // Label1 to Label16
  Label Label17{*this, "Label17", "Colore"};
  Label Label18{*this, "Label18", "Spessore"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};
};

}  // namespace trelvo
