#include <cmath>

#include "edit/edit.h"
#include "edit/passata.h"
#include "platform/numbers.h"

namespace trelvo {

namespace {

struct modi_testo : modi_comuni<testo> {
  static testo copia_di(const testo& o) {
    testo nuovo;
    nuovo.ang_testo(o.ang_testo());
    nuovo.barrato_testo = o.barrato_testo;
    nuovo.bold_testo = o.bold_testo;
    nuovo.carattere_testo(o.carattere_testo());
    nuovo.colore_testo = o.colore_testo;
    nuovo.corsivo_testo(o.corsivo_testo());
    nuovo.dimens_testo = o.dimens_testo;
    nuovo.sottolineato_testo = o.sottolineato_testo;
    nuovo.stringa_testo = o.stringa_testo;
    nuovo.opaco_testo = o.opaco_testo;
    nuovo.colore_opaco_testo = o.colore_opaco_testo;
    nuovo.pos_testox = o.pos_testox;
    nuovo.pos_testoy = o.pos_testoy;
    return nuovo;
  }
  static void ruota(testo& o, const modifica_in_corso& m) {
    const double distanza = std::hypot(o.pos_testox - m.x1, o.pos_testoy - m.y1);
    const double gradi = variazione_ang_testo_ruotato(distanza, m.x2 * pigreco / 180);
    m.ruota(o.pos_testox, o.pos_testoy);
    o.ang_testo(round_to_int32(o.ang_testo() + gradi));
  }
  // A text does not deform: it moves whole.
  static void stira(testo& o, const modifica_in_corso& m) { m.sposta(o.pos_testox, o.pos_testoy); }
};

}  // namespace

void eseguiComandoModifica_su_Testi(distipo& doc, int n, int& contatore) {
  passata<testo, modi_testo>(doc, n, contatore);
}

}  // namespace trelvo
