#include "view/croce.h"

#include "document/trelvobas.h"
#include "platform/numbers.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

constexpr float parte_croce = 20;

}  // namespace

void sposta_croce(distipo& doc, float x, float y) {
  float verticale = doc.Line1.Y2 - doc.Line1.Y1;
  if (verticale == 0) verticale = doc.surface.ScaleWidth / parte_croce;
  doc.Line1.X1 = x;
  doc.Line1.X2 = x;
  doc.Line1.Y1 = y - verticale / 2;
  doc.Line1.Y2 = y + verticale / 2;
  float orizzontale = doc.Line2.X2 - doc.Line2.X1;
  if (orizzontale == 0) orizzontale = doc.surface.ScaleWidth / parte_croce;
  doc.Line2.X1 = x - orizzontale / 2;
  doc.Line2.X2 = x + orizzontale / 2;
  doc.Line2.Y1 = y;
  doc.Line2.Y2 = y;
}

void mostra_croce(distipo& doc, bool visibile) {
  doc.Line1.Visible = visibile;
  doc.Line2.Visible = visibile;
}

void scrivi_coordinate(distipo& doc, float x, float y) {
  const double scala = doc.vista.rapscala;
  doc.bas.frmMain.Text3.Text = " X=" + number_text(valore_mostrato(doc, x / scala));
  doc.bas.frmMain.Text4.Text = " Y=" + number_text(valore_mostrato(doc, y / scala));
}

void sposta_mira(distipo& doc, float x, float y) {
  doc.Shape2.Left = x - doc.Shape2.Width / 2;
  doc.Shape2.Top = y - doc.Shape2.Width / 2;
}

void sposta_segno(distipo& doc, float x, float y) {
  doc.Shape3.Left = x - doc.Shape3.Width / 2;
  doc.Shape3.Top = y - doc.Shape3.Width / 2;
}

}  // namespace trelvo
