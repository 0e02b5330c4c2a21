#include "app/barre.h"

#include <array>

namespace trelvo {

namespace {

constexpr float margine_riga = 100;  // twips
// Buttons that each band leaves room for, bands 1 to 4.
constexpr std::array<int, 4> pulsanti_banda{11, 8, 4, 9};

constexpr int barra_stato = 1;
constexpr int barra_comandi = 2;
constexpr int barra_strumenti = 3;
constexpr int barra_orizzontale = 4;
constexpr int barra_verticale = 5;

std::int16_t& barra(distipo& doc, int n) { return doc.barrevis.barra[static_cast<std::size_t>(n)]; }

}  // namespace

void attivapicture(trelvobas& bas, int n) {
  frmMainForm& f = bas.frmMain;
  if (n == barra_stato) f.Picture1.Visible = true;
  if (n != barra_comandi) return;
  f.Picture2.Visible = true;
  f.Text1.Width = f.Picture2.Width - f.Label1.Left - f.Label1.Width - margine_riga;
  f.Text2.Width = f.Picture2.Width - f.Label2.Left - f.Label2.Width - margine_riga;
}

void disattivapicture(trelvobas& bas, int n) {
  if (n == barra_stato) bas.frmMain.Picture1.Visible = false;
  if (n == barra_comandi) bas.frmMain.Picture2.Visible = false;
}

void attivabarraStrum(trelvobas& bas) {
  bas.frmMain.CoolBar1.Visible = true;
  impostcoolbar(bas);
}

void disattivabarraStrum(trelvobas& bas) { bas.frmMain.CoolBar1.Visible = false; }

void attivabarre(trelvobas& bas) {
  for (int n = 1; n <= bas.nbarre; ++n) attivapicture(bas, n);
  attivabarraStrum(bas);
}

void disattivabarre(trelvobas& bas) {
  for (int n = 1; n <= bas.nbarre; ++n) disattivapicture(bas, n);
  disattivabarraStrum(bas);
}

void impostcoolbar(trelvobas& bas) {
  frmMainForm& f = bas.frmMain;
  float totale = 0;
  for (int i = 1; i <= 4; ++i) {
    Banda& banda = f.Bands(i);
    const Toolbar& strumenti = f.Toolbar1(i);
    banda.MinWidth = strumenti.ButtonWidth * static_cast<float>(pulsanti_banda[static_cast<std::size_t>(i - 1)]);
    if (banda.Width < banda.MinWidth) banda.Width = banda.MinWidth;
    if (!strumenti.Visible) continue;
    totale += banda.Width;
    const bool a_capo = totale > bas.desktop.screen_width() && i != 1;
    banda.NewRow = a_capo;
    if (a_capo) totale = banda.Width;
  }
}

void barre_Click(distipo& doc, int Index) {
  MenuItem& voce = doc.barre(Index);
  const bool accendi = !voce.Checked;
  const std::int16_t valore = accendi ? 1 : 0;
  switch (Index) {
    case 1:
      accendi ? attivabarraStrum(doc.bas) : disattivabarraStrum(doc.bas);
      barra(doc, barra_strumenti) = valore;
      break;
    case 3:
      accendi ? attivapicture(doc.bas, barra_stato) : disattivapicture(doc.bas, barra_stato);
      barra(doc, barra_stato) = valore;
      break;
    case 4:
      accendi ? attivapicture(doc.bas, barra_comandi) : disattivapicture(doc.bas, barra_comandi);
      barra(doc, barra_comandi) = valore;
      break;
    case 6:
      doc.Picture3.Visible = accendi;
      barra(doc, barra_orizzontale) = valore;
      break;
    case 7:
      doc.Picture4.Visible = accendi;
      barra(doc, barra_verticale) = valore;
      break;
    default:
      return;
  }
  voce.Checked = accendi;
  doc.bas.salvafileini_dis(doc);
}

void applica_barre(distipo& doc) {
  if (barra(doc, barra_strumenti) == 0) {
    doc.barre(1).Checked = false;
    disattivabarre(doc.bas);
  }
  if (barra(doc, barra_stato) == 0) {
    doc.barre(3).Checked = false;
    disattivapicture(doc.bas, barra_stato);
  }
  if (barra(doc, barra_comandi) == 0) {
    doc.barre(4).Checked = false;
    disattivapicture(doc.bas, barra_comandi);
  }
  const bool orizzontale = barra(doc, barra_orizzontale) != 0;
  doc.barre(6).Checked = orizzontale;
  doc.Picture3.Visible = orizzontale;
  const bool verticale = barra(doc, barra_verticale) != 0;
  doc.barre(7).Checked = verticale;
  doc.Picture4.Visible = verticale;
}

}  // namespace trelvo
