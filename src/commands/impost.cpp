#include "commands/impost.h"

#include <cmath>

#include "commands/impostazioni.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

const char* const titolo_puntatore = "Colore Puntatore e Griglia";
const char* const titolo_sfondo = "Colore Sfondo";
constexpr int indice_ciano = 3;
constexpr int contrasto_su_ciano = 15;

// The preview counts the pitch in its own units, and shows about two hundred columns at most.
constexpr double colonne_anteprima = 200;

int indice_di(const TextBox& casella) { return round_to_int32(numeric_prefix(casella.Text.get())); }

double numero_di(const TextBox& casella) { return numeric_prefix(casella.Text.get()); }

void mostra_indice(TextBox& casella, int indice) {
  casella.BackColor = tavolozza(indice);
  casella.Text = std::to_string(indice);
}

void dis_anteprimatesto(impostForm& f) {
  RasterSurface& s = f.anteprima;
  const FontDialog& c = f.CommonDialog1;
  s.font = {c.FontName, c.FontSize, c.FontBold, c.FontItalic, c.FontUnderline, c.FontStrikethru};
  s.ForeColor = c.color;
  const std::string testo = "Anteprima Testo";
  s.CurrentX = (s.ScaleWidth - s.TextWidth(testo)) / 2;
  s.CurrentY = (s.ScaleHeight - s.TextHeight(testo)) / 2;
  s.Print(testo);
}

void disgrid(impostForm& f) {
  RasterSurface& s = f.anteprima;
  const Color puntatore = tavolozza(indice_di(f.Text1));
  const double p = numero_di(f.Text3);
  s.BackColor = tavolozza(indice_di(f.Text2));
  f.Picture1.BackColor = s.BackColor;
  s.Cls();
  dis_anteprimatesto(f);
  if (numeric_prefix(f.Label2.Caption.get()) != 0 && f.griglia && p >= s.ScaleWidth / colonne_anteprima) {
    for (double i = 0; i <= s.ScaleWidth; i += p) {
      for (double j = 0; j <= s.ScaleHeight; j += p) s.PSet(i, j, puntatore);
    }
  }
  f.Line1.BorderColor = puntatore;
  f.Line2.BorderColor = puntatore;
}

void muovi_croce(impostForm& f, float X, float Y) {
  const double p = numero_di(f.Text4);
  if (f.Option3.Value && p != 0) {
    X = static_cast<float>(std::floor(X / p) * p);
    Y = static_cast<float>(std::floor((Y + p / 2) / p) * p);
  }
  const float verticale = f.Line1.Y2 - f.Line1.Y1;
  const float orizzontale = f.Line2.X2 - f.Line2.X1;
  f.Line1.X1 = X;
  f.Line1.X2 = X;
  f.Line1.Y1 = Y - verticale / 2;
  f.Line1.Y2 = Y + verticale / 2;
  f.Line2.X1 = X - orizzontale / 2;
  f.Line2.X2 = X + orizzontale / 2;
  f.Line2.Y1 = Y;
  f.Line2.Y2 = Y;
}

void prendi_carattere(distipo& doc) {
  const SurfaceFont& c = doc.surface.font;
  doc.bas.impost.CommonDialog1 = {c.name, c.size, c.bold, c.italic, c.underline, c.strikethru, doc.surface.ForeColor};
}

void scegli_colore(trelvobas& bas, const char* titolo, TextBox& casella) {
  const int prima = indice_di(casella);
  bas.Selcol.Label1.Caption = titolo;
  bas.Selcol.Option1(prima).Value = true;
  bas.desktop.show_modal(bas.Selcol);
  const int dopo = indice_di(casella);
  if (dopo == prima) return;
  mostra_indice(casella, dopo);
  disgrid(bas.impost);
}

// A pitch of 0 cannot be switched on.
bool passo_nullo(trelvobas& bas, const OptionButton& acceso, TextBox& casella, const char* messaggio) {
  if (!acceso.Value || numero_di(casella) != 0) return false;
  bas.desktop.beep();
  bas.desktop.message_box(messaggio, Buttons::ok);
  bas.desktop.set_focus(&casella);
  return true;
}

void conferma_impost(trelvobas& bas) {
  impostForm& f = bas.impost;
  if (passo_nullo(bas, f.Option1, f.Text3, "Impossibile Visualizzare Griglia a passo =0")) return;
  if (passo_nullo(bas, f.Option3, f.Text4, "Impossibile Attivare STEP a passo =0")) return;
  if (bas.attivo() != nullptr) aggimpostgen(*bas.attivo());
  f.unload();
}

void conferma_colore(trelvobas& bas) {
  SelcolForm& s = bas.Selcol;
  for (int i = 0; i < numero_colori; ++i) {
    if (!s.Option1(i).Value) continue;
    (s.Label1.Caption.get() == titolo_sfondo ? bas.impost.Text2 : bas.impost.Text1).Text = std::to_string(i);
  }
  s.unload();
}

void prepara_Selcol(trelvobas& bas) {
  SelcolForm& s = bas.Selcol;
  std::vector<OptionButton*> opzioni;
  opzioni.reserve(numero_colori);
  for (int i = 0; i < numero_colori; ++i) opzioni.push_back(&s.Option1(i));
  group_options(opzioni, {});
  s.Load = [&s] {
    for (int i = 0; i < numero_colori; ++i) s.Text1(i).BackColor = tavolozza(i);
  };
  s.Command1.Click = [&bas] { conferma_colore(bas); };
  s.Command2.Click = [&s] { s.unload(); };
}

float passo_di(const TextBox& casella) {
  const auto passo = static_cast<float>(numero_di(casella));
  if (!std::isfinite(passo)) throw RuntimeError(error_overflow);
  return passo;
}

}  // namespace

void prepara_impost(trelvobas& bas) {
  prepara_Selcol(bas);
  impostForm& f = bas.impost;
  f.Load = [&bas, &f] {
    if (bas.attivo() != nullptr) prendi_carattere(*bas.attivo());
    disgrid(f);
  };
  group_options({&f.Option1, &f.Option2}, [&f](std::size_t scelta) {
    f.griglia = scelta == 0;
    f.Text3.Visible = f.griglia;
    if (f.loaded()) disgrid(f);
  });
  group_options({&f.Option3, &f.Option4}, [&f](std::size_t scelta) { f.Text4.Visible = scelta == 0; });
  f.Text3.Text.on_change([&f] {
    if (f.loaded()) disgrid(f);
  });
  f.Command3.Click = [&bas, &f] { scegli_colore(bas, titolo_puntatore, f.Text1); };
  f.Command4.Click = [&bas, &f] { scegli_colore(bas, titolo_sfondo, f.Text2); };
  f.Command5.Click = [&bas, &f] {
    bas.desktop.show_font(f.CommonDialog1);
    disgrid(f);
  };
  f.Picture1.SurfaceMouseMove = [&f](float X, float Y) { muovi_croce(f, X, Y); };
  f.Command1.Click = [&bas] { conferma_impost(bas); };
  f.Command2.Click = [&f] { f.unload(); };
}

void mostra_impost(distipo& doc) {
  impostForm& f = doc.bas.impost;
  const impostazioni& imp = doc.imp;
  f.Label2.Caption = number_text(doc.vista.rapscala);
  mostra_indice(f.Text1, imp.colorepuntatore.valore);
  mostra_indice(f.Text2, imp.coloresfondo.valore);
  f.Text3.Text = number_text_trimmed(imp.passogriglia);
  f.Text4.Text = number_text_trimmed(imp.passostep);
  (imp.griglia() ? f.Option1 : f.Option2).Value = true;
  (imp.step() ? f.Option3 : f.Option4).Value = true;
  doc.bas.desktop.show_modal(f);
}

void aggimpostgen(distipo& doc) {
  const impostForm& f = doc.bas.impost;
  const bool griglia = f.Option1.Value;
  const bool step = f.Option3.Value;
  const float passogriglia = griglia ? passo_di(f.Text3) : 0;
  const float passostep = step ? passo_di(f.Text4) : 0;
  const int puntatore = indice_di(f.Text1);
  const int sfondo = indice_di(f.Text2);
  const Color colore_puntatore = tavolozza(puntatore);
  const Color colore_sfondo = tavolozza(sfondo);

  impostazioni& imp = doc.imp;
  imp.statogriglia = griglia ? acceso : spento;
  imp.passogriglia = passogriglia;
  imp.statostep = step ? acceso : spento;
  imp.passostep = passostep;
  imp.colorepuntatore = {puntatore, true};
  imp.coloresfondo = {sfondo, true};
  imp.colorecontrasto = {sfondo == indice_ciano ? contrasto_su_ciano : indice_ciano, false};
  doc.aiutdis(4).Checked = step;
  doc.aiutdis(5).Checked = griglia;
  mostra_interruttori(doc);

  doc.surface.Cls();
  doc.surface.BackColor = colore_sfondo;
  for (OverlayLine* linea : {&doc.Line1, &doc.Line2, &doc.Line3}) linea->BorderColor = colore_puntatore;
  doc.Shape1.BorderColor = colore_puntatore;
  doc.Shape2.BorderColor = colore_puntatore;
  const FontDialog& c = f.CommonDialog1;
  doc.surface.font = {c.FontName, c.FontSize, c.FontBold, c.FontItalic, c.FontUnderline, c.FontStrikethru};
  doc.surface.ForeColor = c.color;
  redraw(doc);
  doc.bas.salvafileini_dis(doc);
}

}  // namespace trelvo
