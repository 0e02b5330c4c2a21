#include "document/frmMain.h"

namespace trelvo {

Banda::Banda(Form& owner, std::string control, int position, std::string caption, std::string key)
    : Control(owner, std::move(control), position),
      Caption(*this, "Caption", std::move(caption)),
      Key(*this, "Key", std::move(key)) {}

frmMainForm::frmMainForm() : Form("frmMain") {
  Bands.add(*this, "Bands", 1, "File", "Barra File");
  Bands.add(*this, "Bands", 2, "Disegna", "Barra Disegna");
  Bands.add(*this, "Bands", 3, "Zoom", "Barra Zoom");
  Bands.add(*this, "Bands", 4, "Edita", "Barra Edita");

  const ToolButton separatore{};
  Toolbar1.add(*this, "Toolbar1", 1,
               std::vector<ToolButton>{{"Nuovo", "nuovo"},
                                       {"Apri", "apri"},
                                       {"Salva", "salva"},
                                       {"Salva Con Nome", "salvaconnome"},
                                       {"Chiudi", "chiudi"},
                                       separatore,
                                       {"Imposta Stampante", "imposta_stampante"},
                                       {"Stampa", "stampa"},
                                       separatore,
                                       {"Crea BMP", "crea_bmp"},
                                       {"Crea DXF", "crea_dxf"}});
  Toolbar1.add(*this, "Toolbar1", 2,
               std::vector<ToolButton>{{"Linea", "linea"},
                                       {"Cerchio", "cerchio"},
                                       {"Arco", "arco"},
                                       {"Testo", "testo"},
                                       {"Polilinea", "polilinea"},
                                       {"Superficie", "superficie"},
                                       {"Rettangolo", "rettangolo"}});
  Toolbar1.add(*this, "Toolbar1", 3,
               std::vector<ToolButton>{{"Zoom Area", "zoom_area"},
                                       {"Zoom Tutto", "zoom_tutto"},
                                       {"Zoom Precedente", "zoom_precedente"},
                                       {"Zoom Percentuale", "zoom_percentuale"}});
  Toolbar1.add(*this, "Toolbar1", 4,
               std::vector<ToolButton>{{"Cancella", "cancella"},
                                       {"Sposta", "sposta"},
                                       {"Copia", "copia"},
                                       {"Ruota", "ruota"},
                                       {"Specchio", "specchio"},
                                       {"Stira", "stira"},
                                       {"Proprietà Oggetto", "proprieta"},
                                       {"Distanza-Angolo", "distanza"}});

  gestfile.add(*this, "gestfile", 1, "Nuovo", &file);
  gestfile.add(*this, "gestfile", 2, "Apri", &file);
  gestfile.add(*this, "gestfile", 3, "Esci", &file);

  for (Control* barra :
       {static_cast<Control*>(&CoolBar1), static_cast<Control*>(&Picture1), static_cast<Control*>(&Picture2)}) {
    barra->Visible = false;
  }
  Picture2.Width = 19200;
  Label1.Width = 3600;
  Text1.Enabled = false;
  Text2.Enabled = false;
  for (TextBox* lettura : {&Text3, &Text4, &Text5, &Text6, &Text7}) lettura->Locked = true;
}

}  // namespace trelvo
