// The dialog of printing: scale, origin, and the sheet with the drawing on it. Lengths in millimetres.
#pragma once

#include "platform/controls.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

struct GeststampForm : Form {
  explicit GeststampForm(FontService& caratteri) : Form("Geststamp"), anteprima(caratteri) {
    Caption = "Gestione Stampa";
    Command4.ToolTipText = "Sleziona Finestra di Stampa";
    Command5.ToolTipText = "Imposta Spessore Linee";
    Text1.Text = "1";
    Text2.Text = "0";
    Text3.Text = "0";
    anteprima.ScaleMode = scale_millimetres;
  }
  // The room for the sheet, and below it the dialog's other controls.
  static constexpr float larghezza = 200;
  static constexpr float altezza = 150;
  Property<float> ScaleWidth{*this, "ScaleWidth", larghezza};
  Property<float> ScaleHeight{*this, "ScaleHeight", altezza};

  PictureBox Picture2{*this, "Picture2"};
  PictureBox Picture1{*this, "Picture1"};
  Frame Frame1{*this, "Frame1", "Scala Stampa"};
  Label Label1{*this, "Label1", "Scala ="};
  TextBox Text1{*this, "Text1"};
  Frame Frame2{*this, "Frame2", "Origine Stampa"};
  Label Label2{*this, "Label2", "X ="};
  TextBox Text2{*this, "Text2"};
  Label Label3{*this, "Label3", "Y ="};
  TextBox Text3{*this, "Text3"};
  Button Command4{*this, "Command4", "Seleziona Finestra"};
  Button Command5{*this, "Command5", "Spessore Linee"};
  Label Label4{*this, "Label4"};  // what prints
  Button Command1{*this, "Command1", "Stampa"};
  Button Command2{*this, "Command2", "Annulla"};

  RasterSurface anteprima;  // of Picture1
};

}  // namespace trelvo
