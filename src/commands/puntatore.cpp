#include "commands/puntatore.h"

#include "commands/comando.h"
#include "commands/motore.h"
#include "commands/selezione_modo.h"
#include "view/aggancio.h"
#include "view/croce.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

// After a search that found nothing, none runs for this time.
constexpr double pausa_ricerca = 0.8;  // seconds
constexpr int tasto_sinistro = 1;

std::string coppia_logica(const distipo& doc, float x, float y) {
  return coppia_mostrata(doc, x / doc.vista.rapscala, y / doc.vista.rapscala);
}

void cerca_aggancio(distipo& doc, const comando* c, float& x, float& y) {
  statofiltro& f = doc.filtro;
  if (c == nullptr || f.filtroattivo == 0 || c->aggancio == nullptr || !c->aggancio(doc)) return;
  f.trovatofiltro = 0;
  const float adesso = doc.bas.desktop.timer();
  if (static_cast<double>(adesso) - f.ultimofiltro > pausa_ricerca) {
    selezoggettifiltri(doc, x / doc.vista.rapscala, y / doc.vista.rapscala);
    if (f.trovatofiltro == 0) f.ultimofiltro = adesso;
  }
  if (f.trovatofiltro == 0) {
    doc.Shape3.Visible = false;
    return;
  }
  doc.Shape3.Visible = true;
  x = static_cast<float>(f.xfiltro * doc.vista.rapscala);
  y = static_cast<float>(f.yfiltro * doc.vista.rapscala);
  sposta_segno(doc, x, y);
}

// A preview that cannot be shown at this scale ends quietly where it is.
void distraccia(distipo& doc, const comando& c, float& x, float& y) {
  if (c.anteprima == nullptr) return;
  const double x1 = doc.cmd.corrente().x1;
  const double y1 = doc.cmd.corrente().y1;
  try {
    c.anteprima(doc, x1, y1, x, y);
  } catch (const RuntimeError&) {
  }
}

// Selection by pick: the box follows, then the points.
void segui_mira(distipo& doc, const comando& c, float& x, float& y) {
  sposta_mira(doc, x, y);
  if (doc.cmd.passo < 2) return;
  doc.bas.frmMain.Text2.Text = coppia_logica(doc, x, y);
  if (doc.cmd.passo == 3) distraccia(doc, c, x, y);
}

// Selection by window: band at the second point of a window and at the last one, else an entry field.
void segui_finestra(distipo& doc, const comando& c, float& x, float& y) {
  if (doc.cmd.passo == 1 || doc.cmd.passo == 3) {
    distraccia(doc, c, x, y);
    return;
  }
  frmMainForm& f = doc.bas.frmMain;
  if (!f.Text1.Text.get().starts_with("Nessu") && f.Label2.Caption.get().empty()) {
    f.Text1.Text = coppia_logica(doc, x, y);
  } else if (!f.Label2.Caption.get().starts_with("Conferma")) {
    f.Text2.Text = coppia_logica(doc, x, y);
  }
}

void segui_punti(distipo& doc, const comando* c, float& x, float& y) {
  if (c == nullptr || (c->nome == "Testo" && doc.cmd.passo != 0)) return;
  if (doc.cmd.passo != 0) {
    distraccia(doc, *c, x, y);
  } else if (c->nome != "Cancella") {
    doc.bas.frmMain.Text1.Text = coppia_logica(doc, x, y);
  }
}

void segui(distipo& doc, const comando* c, float& x, float& y) {
  const bool modifica = c != nullptr && c->tipo == genere::modifica;
  const bool per_oggetto = doc.cmd.modoselez == modo_oggetto;
  if (modifica && per_oggetto && c->nome != "Stira") {
    segui_mira(doc, *c, x, y);
  } else if ((modifica && c->nome != "Cancella") || (c != nullptr && c->tipo == genere::areastampa)) {
    segui_finestra(doc, *c, x, y);
  } else {
    segui_punti(doc, c, x, y);
  }
}

void da_tastiera(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  if (!f.Picture2.Visible) return;
  if (f.Text1.Enabled) doc.bas.desktop.set_focus(&f.Text1);
  if (f.Text2.Enabled) doc.bas.desktop.set_focus(&f.Text2);
}

}  // namespace

void Form_MouseMove(distipo& doc, float X, float Y) {
  doc.MousePointer = pointer_own;
  mostra_croce(doc, true);
  doc.mouse.dx = X - doc.surface.ScaleLeft;
  doc.mouse.dy = Y - doc.surface.ScaleTop;
  mousesposta(doc, X, Y);
}

void ripeti_mouse(distipo& doc) {
  Form_MouseMove(doc, doc.surface.ScaleLeft + doc.mouse.dx, doc.surface.ScaleTop + doc.mouse.dy);
}

void Form_MouseDown(distipo& doc, int Button, float X, float Y) {
  if (doc.MousePointer == pointer_default) return;
  arrotonda_allo_step(doc, X, Y);
  if (Button == tasto_sinistro) {
    clicksin(doc, X, Y);
  } else {
    clickdes(doc);
  }
}

void mousesposta(distipo& doc, float& x, float& y) {
  arrotonda_allo_step(doc, x, y);
  sposta_croce(doc, x, y);
  const comando* c = comando_corrente(doc);
  cerca_aggancio(doc, c, x, y);
  scrivi_coordinate(doc, x, y);
  segui(doc, c, x, y);
  da_tastiera(doc);
}

}  // namespace trelvo
