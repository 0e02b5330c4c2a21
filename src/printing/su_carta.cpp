#include "printing/su_carta.h"

#include "platform/numbers.h"
#include "printing/carta.h"
#include "view/conserva_tratto.h"
#include "view/figure.h"

namespace trelvo {

namespace {

// Thickness in sheet units to the width of a pen, halved.
constexpr double fattore_spessore = 1.44;
constexpr double twip_per_millimetro = 56.7;
constexpr double twip_per_punto = 20;
// A size of ten scale units is the size in points at scale 10.
constexpr double divisore_dimensione = 10;

Printer& stampante(const distipo& doc) { return doc.bas.desktop.printer(); }

carta carta_di(const distipo& doc) { return {stampante(doc), doc.stampa}; }

std::int16_t larghezza(const distipo& doc, float spessore, Color colore) {
  const double w = fattore_spessore * spessore_carta(doc.bas, doc.stampa.scalastampa, spessore, colore) / 2;
  return round_to_int16(w < 1 ? 1 : w);
}

template <class Oggetto>
contorno contorno_di(const distipo& doc, const Oggetto& o) {
  return {o.trattcont, static_cast<float>(larghezza(doc, o.spescont, o.colcont)), colore_carta(o.colcont)};
}

}  // namespace

void su_carta(distipo& doc, const Linea& o) {
  Printer& p = stampante(doc);
  const carta c = carta_di(doc);
  const conserva_tratto prima(p);
  p.DrawWidth = larghezza(doc, o.speslinea, o.colorelinea);
  p.DrawStyle = o.TipoLinea;
  p.Line(c.x(o.Xi), c.y(o.Yi), c.x(o.Xf), c.y(o.Yf), colore_carta(o.colorelinea));
}

void su_carta(distipo& doc, const Cerchio& o) {
  const carta c = carta_di(doc);
  discerchio(stampante(doc).hDC(), c.pixel(o.Xcentro, o.Ycentro), c.pixel(o.Xpunto, o.YPunto), contorno_di(doc, o),
             pennello(o.campitura, colore_carta(o.colocampitura)));
}

void su_carta(distipo& doc, const Arco& o) {
  const carta c = carta_di(doc);
  Disarco(stampante(doc).hDC(), c.pixel(o.p1x, o.p1y), c.pixel(o.p2x, o.p2y), c.pixel(o.p3x, o.p3y),
          contorno_di(doc, o));
}

void su_carta(distipo& doc, const Rettangolo& o) {
  dispoligono(stampante(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o),
              pennello(o.campitura, colore_carta(o.colocampitura)));
}

void su_carta(distipo& doc, const superficie& o) {
  dispoligono(stampante(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o),
              pennello_superficie(o.campitura, colore_carta(o.colocampitura)));
}

void su_carta(distipo& doc, const polilinea& o) {
  disPolyline(stampante(doc).hDC(), carta_di(doc).pixel(o.vertici.tutti()), contorno_di(doc, o));
}

// White texts stay white.
void su_carta(distipo& doc, const testo& o) {
  Printer& p = stampante(doc);
  const carta c = carta_di(doc);
  const vertice posizione{twip_per_millimetro * c.x(o.pos_testox) / p.TwipsPerPixelX(),
                          twip_per_millimetro * c.y(o.pos_testoy) / p.TwipsPerPixelY()};
  const double altezza =
      -twip_per_punto * (doc.stampa.scalastampa * o.dimens_testo / divisore_dimensione) / p.TwipsPerPixelY();
  p.font.name = o.nome_carattere();
  p.font.italic = o.corsivo_testo() != falso;
  p.font.underline = o.sottolineato_testo != falso;
  p.font.strikethru = o.barrato_testo != falso;
  p.ForeColor = o.colore_testo;
  dis_testo(p.hDC(), o, posizione, static_cast<float>(altezza), o.colore_testo);
}

}  // namespace trelvo
