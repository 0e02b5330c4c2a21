#include "document/tipolinea.h"

namespace trelvo {

namespace {

constexpr float larghezza_anteprima = 2700;  // twips
constexpr float altezza_anteprima = 900;

}  // namespace

TipoLineaForm::TipoLineaForm(FontService& caratteri) : Form("TipoLinea"), anteprima(caratteri) {
  aggiungi_tratti(*this, picture1);
  Picture4.Width = larghezza_anteprima;
  Picture4.Height = altezza_anteprima;
  anteprima.resize(larghezza_anteprima, altezza_anteprima);
  Line1.X2 = larghezza_anteprima;
  Line1.Y1 = altezza_anteprima / 2;
  Line1.Y2 = altezza_anteprima / 2;
  Line1.Visible = true;
  azzera();
}

void TipoLineaForm::azzera() {
  Caption = "Caratteristiche Generali Linee, Polilinee, Archi";
  Label5.Caption = "";
  Label5.Visible = false;
  for (Label* valore : {&Label1, &Label2, &Label8}) {
    valore->Caption = "";
    valore->Visible = false;
  }
  Frame3.Caption = "Tratto Contorno";
  for (TextBox* casella : {&Text1, &Text2, &Text3, &Text5, &Text6, &Text7, &Text8}) casella->Text = "";
  Frame4.Visible = false;
  Frame4.Caption = "Linea";
  Label3.Caption = "Punto iniziale  X1 =";
  Label6.Caption = "3° Punto    X3 =";
  Label11.Caption = "Punto finale    X2 =";
  Label10.Caption = "Y2 =";
  for (Control* terzo : std::initializer_list<Control*>{&Label6, &Label7, &Text2, &Text3}) terzo->Visible = true;
  vertici.Frame5.Visible = false;
  for (const auto& [indice, lista] : vertici.List1.items()) lista->Clear();
  for (Button* pulsante : {&vertici.Command3, &vertici.Command6, &vertici.Command7}) pulsante->Enabled = true;
  Line1.BorderStyle = 1;
  Line1.BorderWidth = 1;
  Line1.BorderColor = 0;
}

}  // namespace trelvo
