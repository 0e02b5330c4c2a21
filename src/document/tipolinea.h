// The dialog of lines, polylines and arcs: the defaults of the family, or the selected objects. Its caption is its
// mode.
#pragma once

#include "document/contorno.h"
#include "platform/overlay.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

struct TipoLineaForm : Form {
  explicit TipoLineaForm(FontService& caratteri);

  Label Label5{*this, "Label5"};  // a number starts the filling: 0 the defaults, any other the selection
  Frame Frame3{*this, "Frame3", "Tratto Contorno"};
  ControlArray<PictureBox> picture1;
  Label Label8{*this, "Label8"};  // index of the style
  Label Label9{*this, "Label9", "Spessore:"};
  TextBox Text1{*this, "Text1"};
  Label Label1{*this, "Label1"};  // stored thickness
  Button Command4{*this, "Command4", "Colore Linea"};
  Label Label2{*this, "Label2"};  // colour

  Frame Frame4{*this, "Frame4", "Linea"};
  Label Label3{*this, "Label3"};
  TextBox Text5{*this, "Text5"};
  Label Label4{*this, "Label4", "Y1 ="};
  TextBox Text6{*this, "Text6"};
  Label Label6{*this, "Label6"};
  TextBox Text2{*this, "Text2"};
  Label Label7{*this, "Label7", "Y2 ="};
  TextBox Text3{*this, "Text3"};
  Label Label11{*this, "Label11"};
  TextBox Text7{*this, "Text7"};
  Label Label10{*this, "Label10"};
  TextBox Text8{*this, "Text8"};

  elencoform vertici{*this, "Coordinate Vertici Polilinea"};

  Frame Frame1{*this, "Frame1", "Anteprima"};
  PictureBox Picture4{*this, "Picture4"};
  OverlayLine Line1{*this, "Line1"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};

  RasterSurface anteprima;  // of Picture4

  // As it is before it is filled.
  void azzera();
};

}  // namespace trelvo
