// The dialog of the general settings, with its live preview.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/overlay.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

struct impostForm : Form {
  explicit impostForm(FontService& caratteri);

  Frame Frame1{*this, "Frame1", "Griglia"};
  OptionButton Option1{*this, "Option1", "ON"};
  OptionButton Option2{*this, "Option2", "OFF"};
  TextBox Text3{*this, "Text3"};
  Frame Frame2{*this, "Frame2", "Step"};
  OptionButton Option3{*this, "Option3", "ON"};
  OptionButton Option4{*this, "Option4", "OFF"};
  TextBox Text4{*this, "Text4"};
  Frame Frame3{*this, "Frame3", "Colore Puntatore e Griglia"};
  TextBox Text1{*this, "Text1"};
  Button Command3{*this, "Command3", "Modifica"};
  Frame Frame4{*this, "Frame4", "Colore Sfondo"};
  TextBox Text2{*this, "Text2"};
  Button Command4{*this, "Command4", "Modifica"};
  Button Command5{*this, "Command5", "Carattere"};
  Label Label1{*this, "Label1", "Anteprima"};
  PictureBox Picture1{*this, "Picture1"};
  OverlayLine Line1{*this, "Line1"};
  OverlayLine Line2{*this, "Line2"};
  Label Label2{*this, "Label2"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};

  FontDialog CommonDialog1;
  RasterSurface anteprima;  // of Picture1
  bool griglia = false;     // working copy of the grid's state
};

}  // namespace trelvo
