#include "edit/copia.h"

#include <algorithm>

namespace trelvo {

namespace {

template <class Oggetto>
void copia_contorno(const Oggetto& o, Oggetto& nuovo) {
  nuovo.colcont = o.colcont;
  nuovo.spescont = o.spescont;
  nuovo.stato = o.stato;
  nuovo.trattcont = o.trattcont;
}

// Neither a move nor a mirror changes the measures.
template <class Oggetto>
void copia_fondo_e_misure(const Oggetto& o, Oggetto& nuovo) {
  nuovo.campitura = o.campitura;
  nuovo.colocampitura = o.colocampitura;
  nuovo.perimet = o.perimet;
  nuovo.supf = o.supf;
}

// Without their marks.
template <class Oggetto>
void copia_vertici(const Oggetto& o, Oggetto& nuovo) {
  nuovo.vertic(o.vertic());
  std::ranges::copy(o.vertici.tutti(), nuovo.vertici.tutti().begin());
}

}  // namespace

Linea copia_di(const Linea& o) {
  Linea nuovo;
  nuovo.colorelinea = o.colorelinea;
  nuovo.speslinea = o.speslinea;
  nuovo.stato = o.stato;
  nuovo.TipoLinea = o.TipoLinea;
  nuovo.Xi = o.Xi;
  nuovo.Yi = o.Yi;
  nuovo.Xf = o.Xf;
  nuovo.Yf = o.Yf;
  return nuovo;
}

Arco copia_di(const Arco& o) {
  Arco nuovo;
  copia_contorno(o, nuovo);
  nuovo.p1x = o.p1x;
  nuovo.p1y = o.p1y;
  nuovo.p2x = o.p2x;
  nuovo.p2y = o.p2y;
  nuovo.p3x = o.p3x;
  nuovo.p3y = o.p3y;
  return nuovo;
}

Cerchio copia_di(const Cerchio& o) {
  Cerchio nuovo;
  copia_contorno(o, nuovo);
  copia_fondo_e_misure(o, nuovo);
  nuovo.Xcentro = o.Xcentro;
  nuovo.Ycentro = o.Ycentro;
  nuovo.raggio = o.raggio;
  return nuovo;
}

polilinea copia_di(const polilinea& o) {
  polilinea nuovo;
  copia_contorno(o, nuovo);
  copia_vertici(o, nuovo);
  return nuovo;
}

Rettangolo copia_di(const Rettangolo& o) {
  Rettangolo nuovo;
  copia_contorno(o, nuovo);
  copia_fondo_e_misure(o, nuovo);
  copia_vertici(o, nuovo);
  return nuovo;
}

// Without its bitmap.
superficie copia_di(const superficie& o) {
  superficie nuovo;
  copia_contorno(o, nuovo);
  copia_fondo_e_misure(o, nuovo);
  copia_vertici(o, nuovo);
  return nuovo;
}

// The number of characters is not taken: 0 shows the whole text. The slant comes through its accessor.
testo copia_di(const testo& o) {
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

}  // namespace trelvo
