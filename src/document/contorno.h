// The part that the dialogs of lines and of surfaces share: six swatches of line styles in a frame, and the thickness.
#pragma once

#include "platform/controls.h"

namespace trelvo {

// What a label holds when the selected objects differ.
constexpr const char* vari = "Vari";

// The six swatches, named by their tool tips.
void aggiungi_tratti(Form& form, ControlArray<PictureBox>& campioni);

// The two lists of vertex coordinates, x and y, side by side, with their buttons.
struct elencoform {
  elencoform(Form& form, const char* titolo)
      : Frame5(form, "Frame5", titolo),
        Command3(form, "Command3", "Modifica"),
        Command6(form, "Command6", "Inserisci"),
        Command7(form, "Command7", "Elimina") {
    List1.add(form, "List1", 0);
    List1.add(form, "List1", 1);
  }
  Frame Frame5;
  ControlArray<ListBox> List1;
  Button Command3;
  Button Command6;
  Button Command7;
};

}  // namespace trelvo
