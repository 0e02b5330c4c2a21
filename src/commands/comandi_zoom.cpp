#include "commands/comandi_zoom.h"

#include <algorithm>
#include <cmath>

#include "commands/motore.h"
#include "commands/prompt.h"
#include "commands/zoom.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

// Least side of a zoom window, and of the extents for "Zoom Tutto", in drawing units.
constexpr double lato_minimo = 0.01;
constexpr double estensione_minima = 0.5;
// Room left for the scroll strips, in strip widths.
constexpr double margine_barre = 2.5;

void prompt_area(distipo& doc) {
  doc.bas.frmMain.Label1.Caption =
      doc.cmd.comandosospeso.tipo().empty() ? " Zoom_Primo punto: " : "' Zoom_Primo punto: ";
}

std::string secondo_area(const distipo& /*doc*/) { return "Secondo Punto: "; }

void clic_area(distipo& doc, float& X, float& Y) {
  const double x = X / doc.vista.rapscala;
  const double y = Y / doc.vista.rapscala;
  reccomando& r = doc.cmd.corrente();
  if (doc.cmd.passo == 0) {
    r.x1 = x;
    r.y1 = y;
    doc.cmd.passo = 1;
    scrivilabel2(doc);
    return;
  }
  if (!(std::abs(x - r.x1) >= lato_minimo) || !(std::abs(y - r.y1) >= lato_minimo)) {
    doc.bas.desktop.beep();
    return;
  }
  try {
    selzoom(doc, std::min(r.x1, x), std::min(r.y1, y), std::max(r.x1, x), std::max(r.y1, y));
  } catch (...) {
    if (doc.cmd.comando().empty()) ripristinatrasparente(doc);
    throw;
  }
  if (doc.cmd.comandosospeso.tipo().empty()) {
    scrivilabel1(doc);
  } else {
    ripristinatrasparente(doc);
  }
}

void anteprima_area(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, false);
  leggi_spostamento(doc, b);
  leggi_coppia(doc, b);
  finestra_selezione(doc, b, true);
}

// Ends a zoom that has nothing to do.
void rinuncia(distipo& doc) {
  doc.cmd.corrente().tipo("");
  scrivilabel1(doc);
}

void esegui_tutto(distipo& doc, int& /*n*/) {
  statovista& v = doc.vista;
  determxymin_xymax(doc);
  const double larghezza = std::abs(v.xmindis - v.xmaxdis);
  const double altezza = std::abs(v.ymindis - v.ymaxdis);
  if (larghezza < estensione_minima || altezza < estensione_minima) {
    rinuncia(doc);
    return;
  }
  const double mx = doc.Picture4.Width * margine_barre / v.rapscala;
  const double my = doc.Picture3.Height * margine_barre / v.rapscala;
  selzoom(doc, v.xmindis, v.ymindis, v.xmaxdis + mx, v.ymaxdis + my);
  impscroll(doc);
  doc.bas.frmMain.Text1.Text = "";
}

// The view before the last one: each earlier step back asks for one zoom more.
const reccomando* zoom_precedente(const distipo& doc) {
  int zoom = 0;
  int cercati = 2;
  for (int i = doc.cmd.livello - 1; i >= 0; --i) {
    const reccomando& r = doc.cmd.comandi[static_cast<std::size_t>(i)];
    if (r.tipo().starts_with("Zoom")) ++(r.tipo().starts_with("Zoom Prec.") ? cercati : zoom);
    if (zoom == cercati) return &r;
  }
  return nullptr;
}

bool vista_memorizzata(const distipo& doc) {
  const statovista& v = doc.vista;
  const vistaviva viva = vista_viva(doc);
  return viva.sinistra == v.xminvis && viva.alto == v.yminvis &&
         doc.surface.ScaleWidth / v.rapscala == v.larghezzavis && doc.surface.ScaleHeight / v.rapscala == v.altezzavis;
}

void esegui_precedente(distipo& doc, int& /*n*/) {
  statovista& v = doc.vista;
  doc.bas.desktop.MousePointer = pointer_hourglass;
  if (const reccomando* trovato = zoom_precedente(doc)) {
    const reccomando r = *trovato;
    selzoom(doc, r.x1, r.y1, r.x2, r.y2);
    impscroll(doc);
  } else if (!vista_memorizzata(doc)) {
    // Summed as 32-bit floats, as when the file was opened: the same view comes back.
    selzoom(doc, v.xminvis, v.yminvis, v.xminvis + v.larghezzavis, v.yminvis + v.altezzavis);
    impscroll(doc);
    memxin(doc);
  } else {
    doc.bas.desktop.beep();
    doc.bas.desktop.message_box("Nessun \"Zoom Precedente\" memorizzato", Buttons::ok);
    reiniz(doc, doc.cmd.livello);
    scrivilabel1(doc);
  }
}

// The corner and the size are logical numbers, taken as drawing units: the percentage becomes the scale itself.
void esegui_percento(distipo& doc, int& /*n*/) {
  if (doc.vista.zoompercento == 0) throw RuntimeError(error_division);
  const double f = 100.0 / doc.vista.zoompercento;
  if (f == 1) {
    rinuncia(doc);
    return;
  }
  const Surface& s = doc.surface;
  const double x = s.ScaleLeft;
  const double y = s.ScaleTop;
  selzoom(doc, x, y, x + f * s.ScaleWidth, y + f * s.ScaleHeight);
  impscroll(doc);
}

comando riga_immediata(const char* nome, void (*esegui)(distipo&, int&)) {
  comando c;
  c.nome = nome;
  c.tipo = genere::zoom;
  c.immediato = true;
  c.esegui = esegui;
  return c;
}

}  // namespace

std::vector<comando> comandi_zoom() {
  comando area;
  area.nome = "Zoom Area";
  area.tipo = genere::zoom;
  area.primoprompt = prompt_area;
  area.secondoprompt = secondo_area;
  area.clic = clic_area;
  area.anteprima = anteprima_area;
  return {area, riga_immediata("Zoom Tutto", esegui_tutto), riga_immediata("Zoom Prec.", esegui_precedente),
          riga_immediata("Zoom %", esegui_percento)};
}

}  // namespace trelvo
