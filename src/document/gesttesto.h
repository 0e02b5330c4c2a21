// The dialog of texts: places one, sets the defaults, edits the selected ones. The caption of Label1 is its mode.
#pragma once

#include "platform/controls.h"
#include "platform/desktop.h"

namespace trelvo {

constexpr const char* modo_testo_generale = "Caratteristiche Testo";
constexpr const char* modo_testo_nuovo = "Inserisci Testo";
constexpr const char* modo_testo_uno = "Proprietà Testo Selezionato";
constexpr const char* modo_testo_molti = "Proprietà Testi Selezionati";

struct GesttestoForm : Form {
  GesttestoForm() : Form("Gesttesto") { azzera(); }

  Label Label1{*this, "Label1"};
  TextBox Text1{*this, "Text1"};
  Label Label5{*this, "Label5", "Pos.  X="};
  TextBox Text3{*this, "Text3"};
  Label Label6{*this, "Label6", "Y="};
  TextBox Text4{*this, "Text4"};
  Label Label3{*this, "Label3", "Angolo Rotaz."};
  TextBox Text2{*this, "Text2"};
  CheckBox Check1{*this, "Check1", ""};
  Label Label7{*this, "Label7", "Sfondo Opaco"};
  Button Command4{*this, "Command4", "Colore Sfondo"};
  Label Label9{*this, "Label9", "N° Colore  Sfondo"};
  Label Label8{*this, "Label8"};
  Button Command3{*this, "Command3", "Carattere"};
  Label Label4{*this, "Label4"};
  Frame Frame1{*this, "Frame1", "Esempio"};
  Frame Frame2{*this, "Frame2", ""};
  SampleLabel Label2{*this, "Label2"};
  Button Command1{*this, "Command1", "OK"};
  Button Command2{*this, "Command2", "Annulla"};

  FontDialog CommonDialog2;
  bool opaco_toccato = false;  // the user decided about the background

  // As it is before it is filled.
  void azzera() {
    Caption = "";
    Label1.Caption = "";
    for (TextBox* casella : {&Text1, &Text2, &Text3, &Text4}) {
      casella->Text = "";
      casella->Enabled = true;
      casella->Locked = false;
      casella->BackColor = 0xFFFFFF;
    }
    Check1.Value = 0;
    Command4.Enabled = false;
    Label8.Enabled = false;
    Label8.Caption = "";
    Label4.Caption = "";
    Label2.Caption = "";
    Label2.BackColor = 0xFFFFFF;
    opaco_toccato = false;
  }
};

}  // namespace trelvo
