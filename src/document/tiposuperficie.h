// The dialog of surfaces, rectangles and circles: the defaults of the family, or the selected objects. Its caption is
// its mode.
#pragma once

#include "document/contorno.h"
#include "platform/overlay.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

constexpr const char* titolo_vertici = "Coordinate Vertici";
constexpr const char* titolo_centro = "Coordinate Centro e Raggio";

struct TipoSuperficieForm : Form {
  explicit TipoSuperficieForm(FontService& caratteri);

  Label Label1{*this, "Label1"};  // a number starts the filling: 0 the defaults, any other the selection
  Frame Frame2{*this, "Frame2", "Tipo Campitura"};
  ListBox List2{*this, "List2"};
  Label Label9{*this, "Label9"};  // index of the fill
  Button Command5{*this, "Command5", "Colore Campitura"};
  Label Label10{*this, "Label10"};  // fill colour
  Frame Frame3{*this, "Frame3", "Tratto Contorno"};
  ControlArray<PictureBox> picture1;
  Label Label8{*this, "Label8"};  // index of the outline style
  Label Label5{*this, "Label5", "Spessore :"};
  TextBox Text1{*this, "Text1"};
  Label Label7{*this, "Label7"};  // stored thickness
  Button Command4{*this, "Command4", "Colore Contorno"};
  Label Label6{*this, "Label6"};  // outline colour

  elencoform vertici{*this, titolo_vertici};
  // A circle has these in place of the lists.
  Label Label11{*this, "Label11", "Xc ="};
  TextBox Text2{*this, "Text2"};
  Label Label12{*this, "Label12", "Yc ="};
  TextBox Text3{*this, "Text3"};
  Label Label13{*this, "Label13", "R ="};
  TextBox Text4{*this, "Text4"};
  Label Label3{*this, "Label3"};
  Label Label4{*this, "Label4"};
  Label Label2{*this, "Label2"};

  Frame Frame1{*this, "Frame1", "Anteprima"};
  PictureBox Picture2{*this, "Picture2"};
  OverlayShape Shape1{*this, "Shape1"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};

  RasterSurface anteprima;  // of Picture2

  static constexpr const char* nessuno = "NPol";
  // As it is before it is filled.
  void azzera();
};

}  // namespace trelvo
