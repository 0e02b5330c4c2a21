#include "view/banda.h"

#include <cmath>

#include "document/trelvobas.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

constexpr double divisore_spessore = 2.5;
constexpr int tratto_continuo = 1;
constexpr int tratto_punti = 3;
constexpr int fondo_vuoto = 1;
constexpr int forma_rettangolo = 0;
constexpr int forma_cerchio = 3;
constexpr int modo_copia = 13;
constexpr int modo_unione = 2;
constexpr std::int32_t tratto_trasparente = 5;
constexpr std::int32_t campitura_solida = 6;
constexpr std::int32_t campitura_trasparente = 7;

Color colore_puntatore(const distipo& doc) { return tavolozza(doc.imp.colorepuntatore.valore); }

// The controls number their styles one higher than the pens.
int bordo(std::int32_t tratto) { return tratto == tratto_trasparente ? 0 : tratto + 1; }

int larghezza(const distipo& doc, std::int32_t spessore) {
  const double valore = spessore * doc.vista.rapscala / divisore_spessore;
  return valore > 1 ? round_to_int32(valore) : 1;
}

// A size that a control cannot hold ends the preview.
float misura(double valore) {
  if (!(std::abs(valore) <= 3.4e38)) throw RuntimeError(error_overflow);
  return static_cast<float>(valore);
}

}  // namespace

banda tendi_banda(distipo& doc, double x1, double y1, float& x2, float& y2, bool orto) {
  const double scala = doc.vista.rapscala;
  banda b;
  b.x1 = x1 * scala;
  b.y1 = y1 * scala;
  doc.surface.CurrentX = x2;
  doc.surface.CurrentY = y2;
  OverlayLine& linea = doc.Line3;
  linea.Visible = true;
  linea.BorderColor = colore_puntatore(doc);
  linea.BorderStyle = tratto_continuo;
  linea.BorderWidth = 1;
  linea.X1 = misura(b.x1);
  linea.Y1 = misura(b.y1);
  doc.Shape1.DrawMode = modo_unione;
  doc.Shape1.BorderColor = colore_puntatore(doc);
  doc.Shape1.FillStyle = fondo_vuoto;
  doc.Shape1.BorderWidth = 1;

  if (orto) vincola_orto(doc, b.x1, b.y1, x2, y2);
  b.x2 = x2;
  b.y2 = y2;
  linea.X2 = x2;
  linea.Y2 = y2;
  b.ax = valore_mostrato(doc, b.x1 / scala);
  b.ay = valore_mostrato(doc, b.y1 / scala);
  b.bx = valore_mostrato(doc, b.x2 / scala);
  b.by = valore_mostrato(doc, b.y2 / scala);
  b.DX = b.bx - b.ax;
  b.DY = b.by - b.ay;
  b.L = std::sqrt(b.DX * b.DX + b.DY * b.DY);
  b.sx = b.DX * scala;
  b.sy = b.DY * scala;
  b.sl = b.L * scala;
  return b;
}

void leggi_spostamento(distipo& doc, const banda& b) {
  doc.bas.frmMain.Text5.Text = " DX=" + number_text(b.DX);
  doc.bas.frmMain.Text6.Text = " DY=" + number_text(b.DY);
}

void leggi_lunghezza(distipo& doc, const banda& b, const char* nome) {
  doc.bas.frmMain.Text7.Text = nome + number_text(b.L);
}

void leggi_coppia(distipo& doc, const banda& b) { doc.bas.frmMain.Text2.Text = coppia(b.bx, b.by); }

void penna_linea(distipo& doc, const pennabanda& penna) {
  doc.Line3.BorderColor = penna.colore;
  doc.Line3.BorderStyle = bordo(penna.tratto);
  doc.Line3.BorderWidth = larghezza(doc, penna.spessore);
}

void penna_figura(distipo& doc, const pennabanda& penna, std::int32_t campitura, Color fondo) {
  OverlayShape& figura = doc.Shape1;
  figura.DrawMode = modo_copia;
  figura.BorderColor = penna.colore;
  figura.BorderStyle = bordo(penna.tratto);
  figura.BorderWidth = larghezza(doc, penna.spessore);
  figura.FillColor = fondo;
  figura.FillStyle = campitura == campitura_solida        ? 0
                     : campitura == campitura_trasparente ? fondo_vuoto
                                                          : campitura + 2;
}

pennabanda penna_linee(const distipo& doc) {
  const predefiniti& def = doc.bas.def;
  return {def.colorelineadef, def.spessorelineadef, def.tipolineadef};
}

pennabanda penna_superfici(const distipo& doc) {
  const predefiniti& def = doc.bas.def;
  return {def.colcontdef, def.spescontdef, def.trattcontdef};
}

void finestra_banda(distipo& doc, const banda& b) {
  doc.Line3.Visible = false;
  OverlayShape& figura = doc.Shape1;
  figura.Visible = true;
  figura.Shape = forma_rettangolo;
  figura.Width = misura(std::abs(b.sx));
  figura.Height = misura(std::abs(b.sy));
  figura.Left = misura(b.sx > 0 ? b.x1 : b.x1 - std::abs(b.sx));
  figura.Top = misura(b.sy > 0 ? b.y1 : b.y1 - std::abs(b.sy));
}

void finestra_selezione(distipo& doc, const banda& b, bool continua) {
  doc.Shape1.BorderStyle = continua ? tratto_continuo : tratto_punti;
  doc.Shape1.BorderColor = colore_puntatore(doc);
  finestra_banda(doc, b);
}

void cerchio_banda(distipo& doc, const banda& b) {
  OverlayShape& figura = doc.Shape1;
  figura.Visible = true;
  figura.Shape = forma_cerchio;
  figura.Width = misura(2 * b.sl);
  figura.Height = misura(2 * b.sl);
  figura.Left = misura(b.x1 - b.sl);
  figura.Top = misura(b.y1 - b.sl);
}

void secondo_lato(distipo& doc, const banda& b) {
  const Arco& arco = doc.bas.cur.curArco;
  const double scala = doc.vista.rapscala;
  OverlayLine& linea = doc.Line4;
  linea.Visible = true;
  linea.BorderColor = colore_puntatore(doc);
  linea.BorderStyle = tratto_continuo;
  linea.BorderWidth = 1;
  linea.X1 = misura(arco.p2x * scala);
  linea.Y1 = misura(arco.p2y * scala);
  linea.X2 = misura(b.x2);
  linea.Y2 = misura(b.y2);
}

}  // namespace trelvo
