#include "commands/misura.h"

#include <cmath>

#include "commands/prompt.h"
#include "document/trelvobas.h"
#include "geometry/angoli.h"
#include "geometry/pigreco.h"
#include "model/tavolozza.h"

namespace trelvo {

namespace {

constexpr int colore_misura = 9;

}  // namespace

void esegui_distanza(distipo& doc, int& n) {
  const reccomando& r = doc.cmd.comandi[static_cast<std::size_t>(n)];
  const double dx = r.x2 - r.x1;
  const double dy = r.y2 - r.y1;
  const double gradi = angolo_retta_P1P2(r.x1, r.y1, r.x2, r.y2) * 180 / pigreco;
  const RegionalFormat formato = doc.bas.desktop.regional();
  const auto coordinata = [&](double v) { return fixed_text(v, 2, formato); };
  accendi_Text1(doc);
  TextBox& t = doc.bas.frmMain.Text1;
  t.Locked = true;
  t.ForeColor = tavolozza(colore_misura);
  t.Text = "   P1=(" + coordinata(r.x1) + ";" + coordinata(r.y1) + ") - P2=(" + coordinata(r.x2) + ";" +
           coordinata(r.y2) + ")   DISTANZA = " + fixed_text(std::sqrt(dx * dx + dy * dy), 3, formato) +
           " ANGOLO = " + fixed_text(gradi, 4, formato);
}

}  // namespace trelvo
