// The document window: a drawing, its surface and overlays, its menus, and one state struct a subsystem.
// It has no behaviour: operations are functions in the folder of their subsystem.
#pragma once

#include <memory>

#include "document/stato.h"
#include "model/disegno.h"
#include "platform/controls.h"
#include "platform/overlay.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

struct trelvobas;

struct distipoForm : Form {
  distipoForm();

  OverlayLine Line1{*this, "Line1"};
  OverlayLine Line2{*this, "Line2"};
  OverlayLine Line3{*this, "Line3"};
  OverlayLine Line4{*this, "Line4"};
  OverlayShape Shape1{*this, "Shape1"};
  OverlayShape Shape2{*this, "Shape2"};
  OverlayShape Shape3{*this, "Shape3"};
  PictureBox Picture3{*this, "Picture3"};
  PictureBox Picture4{*this, "Picture4"};
  ScrollBar HScroll1{*this, "HScroll1"};
  ScrollBar VScroll1{*this, "VScroll1"};

  MenuItem file{*this, "file", no_index, "&File", nullptr};
  ControlArray<MenuItem> opfile;
  MenuItem mnuesporta{*this, "mnuesporta", no_index, "Esporta", &file};
  MenuItem mnucreabmp{*this, "mnucreabmp", no_index, "Crea BMP", &mnuesporta};
  MenuItem mnudxf{*this, "mnudxf", no_index, "Crea DXF", &mnuesporta};

  MenuItem disegna{*this, "disegna", no_index, "&Disegna", nullptr};
  ControlArray<MenuItem> opdis;

  MenuItem visual{*this, "visual", no_index, "&Visualizza", nullptr};
  ControlArray<MenuItem> selezoom;
  ControlArray<MenuItem> barre;

  MenuItem mnuedita{*this, "mnuedita", no_index, "&Edita", nullptr};
  ControlArray<MenuItem> modifica;
  ControlArray<MenuItem> impo;
  MenuItem mnudistanza{*this, "mnudistanza", no_index, "Distanza-Angolo", &mnuedita};

  MenuItem aiuti{*this, "aiuti", no_index, "&Aiuti al disegno", nullptr};
  ControlArray<MenuItem> aiutdis;
  std::unique_ptr<MenuItem> mnutipolinea;
  std::unique_ptr<MenuItem> mnutiposup;
  std::unique_ptr<MenuItem> mnutipotesto;

  MenuItem menufiltri{*this, "menufiltri", no_index, "&Filtri                   F9", nullptr};
  ControlArray<MenuItem> filtri;

  MenuItem mnufinestra{*this, "mnufinestra", no_index, "F&inestra", nullptr};

  MenuItem menuhelp{*this, "menuhelp", no_index, "Help", nullptr};
  MenuItem help{*this, "help", no_index, "Help", &menuhelp};
  MenuItem informa{*this, "informa", no_index, "Info su...", &menuhelp};
};

struct distipo : distipoForm {
  distipo(trelvobas& programma, FontService& caratteri, int numero_progressivo);

  trelvobas& bas;
  const int numero;  // running number, from 1
  RasterSurface surface;
  disegno dis;

  statocomandi cmd;
  statovista vista;
  impostazioni imp;
  statofiltro filtro;
  predefinititesto testi;
  statostampa stampa;
  statobarre barrevis;
  // Last place of the mouse, from the surface's corner, logical units.
  struct {
    float dx = 0;
    float dy = 0;
  } mouse;
  bool ridimensionato = false;
  std::string aperto_da;      // name that it was opened by, in the list of names; empty for a new drawing
  std::uint64_t salvata = 0;  // state of the drawing when it was read or written last
  bool segno_tolto = false;   // the mark of a change was cleared once, though no file holds the change
  std::string impronta;       // of the file that holds all that was read from it or written to it last; empty for none
};

}  // namespace trelvo
