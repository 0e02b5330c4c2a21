#include "edit/edit.h"
#include "edit/passata.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"

namespace trelvo {

namespace {

void scambia_estremi(Arco& o) {
  std::swap(o.p1x, o.p2x);
  std::swap(o.p1y, o.p2y);
}

struct modi_arco : modi_comuni<Arco> {
  static Arco copia_di(const Arco& o) {
    Arco nuovo;
    nuovo.colcont = o.colcont;
    nuovo.spescont = o.spescont;
    nuovo.trattcont = o.trattcont;
    nuovo.p1x = o.p1x;
    nuovo.p1y = o.p1y;
    nuovo.p2x = o.p2x;
    nuovo.p2y = o.p2y;
    nuovo.p3x = o.p3x;
    nuovo.p3y = o.p3y;
    return nuovo;
  }
  // A mirror turns the sense of the curve round, so that the ends change places.
  static void riflesso(Arco& o) { scambia_estremi(o); }

  // The third point goes as far as the end that moves. The centre then takes the place of the command's first point:
  // the next arc of the same stretch moves by what is left from there.
  static void stira(Arco& o, modifica_in_corso& m) {
    if (o.vert1_selez == 1) m.sposta(o.p1x, o.p1y);
    if (o.vert2_selez == 1) m.sposta(o.p2x, o.p2y);
    if (o.vert1_selez == 1 || o.vert2_selez == 1) {
      m.sposta(o.p3x, o.p3y);
      double R = 0;
      cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, m.x1, m.y1, R);
      if (!detPinArco(o.p3x, o.p3y, m.x1, m.y1, o.p1x, o.p1y, o.p2x, o.p2y)) scambia_estremi(o);
    }
    o.vert1_selez = 0;
    o.vert2_selez = 0;
  }
};

// A circle is handled by its centre alone; its rim point goes back to the right of it.
struct modi_cerchio : modi_comuni<Cerchio> {
  static Cerchio copia_di(const Cerchio& o) {
    Cerchio nuovo;
    nuovo.campitura = o.campitura;
    nuovo.colcont = o.colcont;
    nuovo.colocampitura = o.colocampitura;
    nuovo.perimet = o.perimet;
    nuovo.spescont = o.spescont;
    nuovo.supf = o.supf;
    nuovo.trattcont = o.trattcont;
    nuovo.Xcentro = o.Xcentro;
    nuovo.Ycentro = o.Ycentro;
    nuovo.raggio = o.raggio;
    return nuovo;
  }
  static void a_posto(Cerchio& o) {
    o.Xpunto = o.Xcentro + o.raggio;
    o.YPunto = o.Ycentro;
  }
  static void riflesso(Cerchio& o) { a_posto(o); }
  static void ruota(Cerchio& o, const modifica_in_corso& m) {
    m.ruota(o.Xcentro, o.Ycentro);
    a_posto(o);
  }
  static void stira(Cerchio& o, const modifica_in_corso& m) {
    m.sposta(o.Xcentro, o.Ycentro);
    a_posto(o);
  }
};

}  // namespace

void eseguiComandoModifica_su_Archi(distipo& doc, int n, int& contatore) {
  passata<Arco, modi_arco>(doc, n, contatore);
}

void eseguiComandoModifica_su_Cerchi(distipo& doc, int n, int& contatore) {
  passata<Cerchio, modi_cerchio>(doc, n, contatore);
}

}  // namespace trelvo
