#include "printing/anteprima.h"

#include "platform/numbers.h"
#include "printing/carta.h"
#include "view/conserva_tratto.h"
#include "view/figure.h"

namespace trelvo {

namespace {

// Thickness in sheet units to the width of a pen, and size of a text to its height. The screen has its own.
constexpr double divisore_spessore = 2.8;
constexpr double divisore_altezza = 6.7;

RasterSurface& foglio(distipo& doc) { return doc.bas.Geststamp.anteprima; }

carta carta_di(distipo& doc) { return {foglio(doc), doc.stampa}; }

double larghezza(const distipo& doc, float spessore, Color colore) {
  const double w = spessore_carta(doc.bas, doc.stampa.scalastampa, spessore, colore) / divisore_spessore;
  return w < 1 ? 1 : w;
}

template <class Oggetto>
contorno contorno_di(const distipo& doc, const Oggetto& o) {
  return {o.trattcont, static_cast<float>(larghezza(doc, o.spescont, o.colcont)), colore_carta(o.colcont)};
}

}  // namespace

void anteprima(distipo& doc, const Linea& o) {
  RasterSurface& s = foglio(doc);
  const carta c = carta_di(doc);
  const conserva_tratto prima(s);
  s.DrawWidth = round_to_int16(larghezza(doc, o.speslinea, o.colorelinea));
  s.DrawStyle = o.TipoLinea;
  s.Line(c.x(o.Xi), c.y(o.Yi), c.x(o.Xf), c.y(o.Yf), colore_carta(o.colorelinea));
}

void anteprima(distipo& doc, const Cerchio& o) {
  const carta c = carta_di(doc);
  discerchio(foglio(doc).hDC(), c.pixel(o.Xcentro, o.Ycentro), c.pixel(o.Xpunto, o.YPunto), contorno_di(doc, o),
             pennello(o.campitura, colore_carta(o.colocampitura)));
}

void anteprima(distipo& doc, const Arco& o) {
  const carta c = carta_di(doc);
  Disarco(foglio(doc).hDC(), c.pixel(o.p1x, o.p1y), c.pixel(o.p2x, o.p2y), c.pixel(o.p3x, o.p3y), contorno_di(doc, o));
}

void anteprima(distipo& doc, const Rettangolo& o) {
  dispoligono(foglio(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o),
              pennello(o.campitura, colore_carta(o.colocampitura)));
}

void anteprima(distipo& doc, const superficie& o) {
  dispoligono(foglio(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o),
              pennello_superficie(o.campitura, colore_carta(o.colocampitura)));
}

void anteprima(distipo& doc, const polilinea& o) {
  disPolyline(foglio(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o));
}

void anteprima(distipo& doc, const testo& o) {
  if (!(o.dimens_testo > 0)) return;
  RasterSurface& s = foglio(doc);
  const carta c = carta_di(doc);
  doc.surface.font.size = o.dimens_testo;
  const double altezza = doc.stampa.scalastampa * o.dimens_testo / divisore_altezza;
  if (!(altezza > 0)) {
    s.PSet(c.x(o.pos_testox), c.y(o.pos_testoy), 0);
    return;
  }
  s.font.name = o.nome_carattere();
  s.font.italic = o.corsivo_testo() != falso;
  s.font.underline = o.sottolineato_testo != falso;
  s.font.strikethru = o.barrato_testo != falso;
  s.ForeColor = o.colore_testo;
  dis_testo(s.hDC(), o, c.pixel(o.pos_testox, o.pos_testoy), static_cast<float>(altezza), o.colore_testo);
}

}  // namespace trelvo
