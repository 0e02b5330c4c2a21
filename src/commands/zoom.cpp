#include "commands/zoom.h"

#include <algorithm>
#include <cmath>

#include "commands/comando.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "view/mappa.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

// The corner and the size of a view are 32-bit floats, in the window's units as in the drawing's.
bool rappresentabile(std::initializer_list<double> valori) {
  return std::all_of(valori.begin(), valori.end(),
                     [](double valore) { return std::isfinite(static_cast<float>(valore)); });
}

void annota_zoom(distipo& doc, double x1, double y1, double x2, double y2) {
  reccomando& r = doc.cmd.corrente();
  if (r.tipo().empty()) return;
  r.x1 = x1;
  r.y1 = y1;
  r.x2 = x2;
  r.y2 = y2;
  doc.cmd.ultimocomando = r.tipo();
  ++doc.cmd.livello;
  reiniz(doc, doc.cmd.livello);
}

}  // namespace

void selzoom(distipo& doc, double x1, double y1, double x2, double y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  const double prima = doc.vista.rapscala;
  impost_rapscala(doc, x1, y1, x2, y2);
  const double sinistra = doc.vista.rapscala * x1;
  const double alto = doc.vista.rapscala * y1;
  const Surface& s = doc.surface;
  if (!rappresentabile(
          {sinistra, alto, x1, y1, s.ScaleWidth / doc.vista.rapscala, s.ScaleHeight / doc.vista.rapscala})) {
    doc.vista.rapscala = prima;
    throw RuntimeError(error_overflow);
  }
  annota_zoom(doc, x1, y1, x2, y2);
  doc.bas.frmMain.Label3.Caption = number_text(doc.vista.rapscala);
  doc.surface.ScaleLeft = static_cast<float>(sinistra);
  doc.surface.ScaleTop = static_cast<float>(alto);
  // The zoom is over even if the view cannot be painted.
  try {
    redraw(doc);
  } catch (...) {
    scrivilabel1(doc);
    throw;
  }
  scrivilabel1(doc);
}

void selezoom_Click(distipo& doc, int Index) {
  const comando* c = comando_corrente(doc);
  if (c != nullptr && c->tipo == genere::zoom) {
    annullacomando(doc, doc.cmd.livello);
  } else {
    sospendi(doc);
  }
  const std::string nome = doc.selezoom(Index).Caption;
  if (Index == 2 && doc.cmd.statooggetti == 0 && doc.cmd.statotesti == 0) {
    doc.bas.desktop.beep();
    doc.bas.desktop.message_box("Inutile eseguire: \"" + nome + "\" - Disegno Vuoto", Buttons::ok);
    ripristinatrasparente(doc);
    return;
  }
  if (Index < 1 || Index > 3) return;
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  doc.cmd.corrente().tipo(nome);
  doc.cmd.modificato = 1;
  scrivilabel1(doc);
}

void zoomperc(distipo& doc, const std::string& percentuale) {
  doc.vista.zoompercento = round_to_int32(numeric_prefix(percentuale));
  doc.cmd.corrente().tipo("Zoom %");
  doc.cmd.modificato = 1;
  scrivilabel1(doc);
}

void impscroll(distipo& doc) {
  doc.Picture3.Visible = false;
  doc.Picture4.Visible = false;
  doc.HScroll1.Max = 100;
  doc.HScroll1.SmallChange = 1;
  doc.HScroll1.LargeChange = 10;
  doc.VScroll1.Value = 100;
  doc.VScroll1.SmallChange = 1;
  doc.VScroll1.LargeChange = 10;
  doc.HScroll1.Value = 50;
  doc.VScroll1.Value = 50;
  doc.vista.valoreprecH = 50;
  doc.vista.valoreprecV = 50;
  doc.Picture3.Visible = doc.barre(6).Checked;
  doc.Picture4.Visible = doc.barre(7).Checked;
}

namespace {

// One unit of a bar is a twentieth of the view's shorter side.
constexpr float unita_per_lato = 20;

// A scroll is not repeated by a right click, whether it came through or not.
class ultimo_tenuto {
 public:
  explicit ultimo_tenuto(statocomandi& cmd) : cmd_(cmd), ultimo_(cmd.ultimocomando) {}
  ultimo_tenuto(const ultimo_tenuto&) = delete;
  ultimo_tenuto& operator=(const ultimo_tenuto&) = delete;
  ~ultimo_tenuto() { cmd_.ultimocomando = std::move(ultimo_); }

 private:
  statocomandi& cmd_;
  std::string ultimo_;
};

void scorri(distipo& doc, bool orizzontale) {
  const ScrollBar& barra = orizzontale ? doc.HScroll1 : doc.VScroll1;
  std::int16_t& precedente = orizzontale ? doc.vista.valoreprecH : doc.vista.valoreprecV;
  const vistaviva v = vista_viva(doc);
  const auto sinistra = static_cast<float>(v.sinistra);
  const auto alto = static_cast<float>(v.alto);
  const auto destra = static_cast<float>(sinistra + doc.surface.ScaleWidth / doc.vista.rapscala);
  const auto basso = static_cast<float>(alto + doc.surface.ScaleHeight / doc.vista.rapscala);
  const double estensione = orizzontale ? doc.vista.xmaxdis - doc.vista.xmindis : doc.vista.ymaxdis - doc.vista.ymindis;
  const float unita = std::min(destra - sinistra, basso - alto) / unita_per_lato;
  if (!(unita < estensione)) return;

  const auto valore = static_cast<std::int16_t>(barra.Value.get());
  const float spostamento = unita * static_cast<float>(valore - precedente);
  const float dx = orizzontale ? spostamento : 0;
  const float dy = orizzontale ? 0 : spostamento;
  const ultimo_tenuto ultimo(doc.cmd);
  con_comando_da_parte(doc, [&] {
    doc.cmd.ultimocomando = "Zoom Dinamico";
    selzoom(doc, dx + sinistra, dy + alto, dx + destra, dy + basso);
    precedente = valore;
  });
}

}  // namespace

void HScroll1_Change(distipo& doc) {
  if (doc.Picture3.Visible) scorri(doc, true);
}

void VScroll1_Change(distipo& doc) {
  if (doc.Picture4.Visible) scorri(doc, false);
}

}  // namespace trelvo
