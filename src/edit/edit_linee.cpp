#include "edit/edit.h"
#include "edit/passata.h"

namespace trelvo {

namespace {

struct modi_linea : modi_comuni<Linea> {
  static Linea copia_di(const Linea& o) {
    Linea nuova;
    nuova.colorelinea = o.colorelinea;
    nuova.speslinea = o.speslinea;
    nuova.TipoLinea = o.TipoLinea;
    nuova.Xi = o.Xi;
    nuova.Yi = o.Yi;
    nuova.Xf = o.Xf;
    nuova.Yf = o.Yf;
    return nuova;
  }
  static void stira(Linea& o, const modifica_in_corso& m) {
    if (o.vert1_selez == 1) m.sposta(o.Xi, o.Yi);
    if (o.vert2_selez == 1) m.sposta(o.Xf, o.Yf);
    o.vert1_selez = 0;
    o.vert2_selez = 0;
  }
};

}  // namespace

void eseguiComandoModifica_su_Linee(distipo& doc, int n, int& contatore) {
  passata<Linea, modi_linea>(doc, n, contatore);
}

}  // namespace trelvo
