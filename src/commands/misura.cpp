#include <cmath>

#include "commands/comandi_disegno.h"
#include "commands/due_punti.h"
#include "commands/prompt.h"
#include "geometry/angoli.h"
#include "geometry/pigreco.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/banda.h"

namespace trelvo {

namespace {

constexpr int colore_misura = 9;

void prompt_distanza(distipo& doc) { scrivi_prompt(doc, " Distanza-Angolo_Dal Punto: "); }

void clic_distanza(distipo& doc, float& X, float& Y) {
  clic_due_punti(
      doc, X, Y, [](distipo&, double, double) {}, secondo_nel_record);
}

void anteprima_distanza(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, orto_secondo_modo(doc));
  leggi_spostamento(doc, b);
  leggi_lunghezza(doc, b, " L=");
  leggi_coppia(doc, b);
}

// The command goes on from the same first point.
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

}  // namespace

comando riga_distanza() {
  comando c;
  c.nome = "Distanza-Angolo";
  c.tipo = genere::misura;
  c.primoprompt = prompt_distanza;
  c.secondoprompt = al_punto;
  c.clic = clic_distanza;
  c.esegui = esegui_distanza;
  c.anteprima = anteprima_distanza;
  c.aggancio = sempre;
  c.riprendi = scrivilabel1;
  return c;
}

}  // namespace trelvo
