#include "document/impost.h"

namespace trelvo {

namespace {

// Preview and its cross, twips.
constexpr float larghezza_anteprima = 4500;
constexpr float altezza_anteprima = 3000;
constexpr float mezza_croce = 450;

}  // namespace

impostForm::impostForm(FontService& caratteri) : Form("impost"), anteprima(caratteri) {
  Caption = "Cad - Gestione Disegni :  Impostazioni Generali";
  Picture1.Width = larghezza_anteprima;
  Picture1.Height = altezza_anteprima;
  anteprima.resize(larghezza_anteprima, altezza_anteprima);
  const float x = larghezza_anteprima / 2;
  const float y = altezza_anteprima / 2;
  Line1.X1 = Line1.X2 = x;
  Line1.Y1 = y - mezza_croce;
  Line1.Y2 = y + mezza_croce;
  Line2.X1 = x - mezza_croce;
  Line2.X2 = x + mezza_croce;
  Line2.Y1 = Line2.Y2 = y;
  Line1.Visible = true;
  Line2.Visible = true;
  Text1.Locked = true;
  Text2.Locked = true;
  Label2.Visible = false;
}

}  // namespace trelvo
