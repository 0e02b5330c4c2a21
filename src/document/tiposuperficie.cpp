#include "document/tiposuperficie.h"

namespace trelvo {

namespace {

constexpr float larghezza_anteprima = 2700;  // twips
constexpr float altezza_anteprima = 1500;
constexpr float margine_anteprima = 300;

}  // namespace

TipoSuperficieForm::TipoSuperficieForm(FontService& caratteri) : Form("TipoSuperficie"), anteprima(caratteri) {
  aggiungi_tratti(*this, picture1);
  for (const char* campitura : {"Linee Orizzontali", "Linee Verticali", "Diagonale su", "Diagonale giù", "Quadratini",
                                "Rombi", "Solido", "Trasparente!"}) {
    List2.AddItem(campitura);
  }
  Picture2.Width = larghezza_anteprima;
  Picture2.Height = altezza_anteprima;
  anteprima.resize(larghezza_anteprima, altezza_anteprima);
  Shape1.Left = margine_anteprima;
  Shape1.Top = margine_anteprima;
  Shape1.Width = larghezza_anteprima - 2 * margine_anteprima;
  Shape1.Height = altezza_anteprima - 2 * margine_anteprima;
  Shape1.Visible = true;
  azzera();
}

void TipoSuperficieForm::azzera() {
  Caption = "Caratteristiche Generali Superfici, Rettangoli, Cerchi";
  Label1.Caption = nessuno;
  Label1.Visible = false;
  for (Label* valore : {&Label6, &Label7, &Label8, &Label9, &Label10}) {
    valore->Caption = "";
    valore->Visible = false;
  }
  List2.ListIndex = -1;
  Frame3.Caption = "Tratto Contorno";
  for (TextBox* casella : {&Text1, &Text2, &Text3, &Text4}) casella->Text = "";
  for (Control* del_cerchio : std::initializer_list<Control*>{&Label11, &Text2, &Label12, &Text3, &Label13, &Text4}) {
    del_cerchio->Visible = false;
  }
  vertici.Frame5.Visible = false;
  vertici.Frame5.Caption = titolo_vertici;
  for (const auto& [indice, lista] : vertici.List1.items()) {
    lista->Clear();
    lista->Visible = true;
  }
  for (Button* pulsante : {&vertici.Command3, &vertici.Command6, &vertici.Command7}) {
    pulsante->Enabled = true;
    pulsante->Visible = true;
  }
  Label3.Caption = "Perimetro= 0.00";
  Label4.Caption = "Area     = 0.00";
  Label2.Caption = "";
  for (Label* misura : {&Label2, &Label3, &Label4}) misura->Visible = false;
  Shape1.FillStyle = 1;
  Shape1.FillColor = 0;
  Shape1.BorderStyle = 1;
  Shape1.BorderColor = 0;
}

}  // namespace trelvo
