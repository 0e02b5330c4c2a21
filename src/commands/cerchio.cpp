#include "commands/comandi_disegno.h"

#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/due_punti.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "view/banda.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

void prompt_cerchio(distipo& doc) { scrivi_prompt(doc, " Cerchio_Centro: "); }

std::string prompt_raggio(const distipo& /*doc*/) { return "Raggio: "; }

// The radius is what the second entry says; the click's own place counts only through it.
void clic_cerchio(distipo& doc, float& X, float& Y) {
  clic_due_punti(
      doc, X, Y,
      [](distipo& d, double a, double b) {
        d.bas.cur.curCerchio.Xcentro = a;
        d.bas.cur.curCerchio.Ycentro = b;
      },
      [](distipo& d, double /*a*/, double /*b*/) {
        const reccomando& r = d.cmd.corrente();
        secondo_nel_record(d, within_float(numeric_prefix(d.bas.frmMain.Text2.Text.get())) + r.x1, r.y1);
        d.bas.cur.curCerchio.Xpunto = r.x2;
        d.bas.cur.curCerchio.YPunto = r.y2;
      });
}

void esegui_cerchio(distipo& doc, int& /*n*/) {
  doc.cmd.statooggetti = 1;
  aggiungi_oggetto(doc, "Cerchio");
  concludi_comando(doc, "Cerchio");
  scrivilabel1(doc);
}

void anteprima_cerchio(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, orto_secondo_modo(doc));
  frmMainForm& f = doc.bas.frmMain;
  f.Text5.Text = " R=" + number_text(b.L);
  f.Text2.Text = number_text(b.L);
  f.Text6.Text = "";
  f.Text7.Text = "";
  penna_figura(doc, penna_superfici(doc), doc.bas.def.campituradef, doc.bas.def.colocampituradef);
  cerchio_banda(doc, b);
}

}  // namespace

comando riga_cerchio() {
  comando c;
  c.nome = "Cerchio";
  c.primoprompt = prompt_cerchio;
  c.secondoprompt = prompt_raggio;
  c.clic = clic_cerchio;
  c.esegui = esegui_cerchio;
  c.anteprima = anteprima_cerchio;
  c.aggancio = sempre;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosCerchio = doc.bas.cur.curCerchio; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosCerchio, doc.bas.cur.curCerchio);
    scrivilabel1(doc);
  };
  return c;
}

}  // namespace trelvo
