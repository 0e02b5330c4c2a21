#include "view/pittura.h"

#include <type_traits>
#include <vector>

#include "geometry/rette.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/conserva_tratto.h"
#include "view/figure.h"

namespace trelvo {

namespace {

// Stored width times scale to the width of a pen, in pixels.
constexpr double divisore_spessore = 2.5;

// The surface's own operation comes before direct work on its context.
void prepara_contesto(Surface& s) { s.PSet(s.ScaleLeft, s.ScaleTop, 0); }

vertice in_pixel(const distipo& doc, double X, double Y) {
  const Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  return {s.ScaleX(X * scala - s.ScaleLeft, s.ScaleMode, scale_pixels),
          s.ScaleY(Y * scala - s.ScaleTop, s.ScaleMode, scale_pixels)};
}

std::vector<vertice> in_pixel(const distipo& doc, std::span<const vertice> punti) {
  std::vector<vertice> pixel;
  pixel.reserve(punti.size());
  for (const vertice& v : punti) pixel.push_back(in_pixel(doc, v.x, v.y));
  return pixel;
}

template <class Oggetto>
contorno contorno_di(const distipo& doc, const Oggetto& o, bool proprio) {
  auto spessore = static_cast<float>(o.spescont * doc.vista.rapscala / divisore_spessore);
  // An arc goes without the least width: a pen of width 0 is one pixel wide too.
  if (!std::is_same_v<Oggetto, Arco> && spessore < 1) spessore = 1;
  return {o.trattcont, spessore, proprio ? o.colcont : colore_contrasto(doc)};
}

template <class Oggetto>
Color colore_fondo(const distipo& doc, const Oggetto& o, bool proprio) {
  return proprio ? o.colocampitura : colore_contrasto(doc);
}

}  // namespace

Color colore_contrasto(const distipo& doc) { return tavolozza(doc.imp.colorecontrasto.valore); }

void disegnalinea(distipo& doc, const Linea& linea, bool usacoloriproprio) {
  Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  const Color colore = usacoloriproprio ? linea.colorelinea : colore_contrasto(doc);
  std::int32_t spessore = 1;
  if (linea.speslinea != 0) {
    spessore = round_to_int32(linea.speslinea * scala / divisore_spessore);
    if (spessore < 1) spessore = 1;
  }
  const conserva_tratto prima(s);
  s.DrawWidth = round_to_int16(spessore);
  s.DrawStyle = linea.TipoLinea;
  s.Line(linea.Xi * scala, linea.Yi * scala, linea.Xf * scala, linea.Yf * scala, colore);
}

void disegnaarco(distipo& doc, const Arco& arco, bool usacoloriproprio) {
  if (detPinsegmento(arco.p3x, arco.p3y, arco.p1x, arco.p1y, arco.p2x, arco.p2y)) {
    Linea corda;
    corda.colorelinea = arco.colcont;
    corda.speslinea = arco.spescont;
    corda.TipoLinea = arco.trattcont;
    corda.Xi = arco.p1x;
    corda.Yi = arco.p1y;
    corda.Xf = arco.p2x;
    corda.Yf = arco.p2y;
    disegnalinea(doc, corda, usacoloriproprio);
    return;
  }
  prepara_contesto(doc.surface);
  Disarco(doc.surface.hDC(), in_pixel(doc, arco.p1x, arco.p1y), in_pixel(doc, arco.p2x, arco.p2y),
          in_pixel(doc, arco.p3x, arco.p3y), contorno_di(doc, arco, usacoloriproprio));
}

void disegnacerchio(distipo& doc, const Cerchio& cerchio, bool usacoloriproprio) {
  prepara_contesto(doc.surface);
  discerchio(doc.surface.hDC(), in_pixel(doc, cerchio.Xcentro, cerchio.Ycentro),
             in_pixel(doc, cerchio.Xpunto, cerchio.YPunto), contorno_di(doc, cerchio, usacoloriproprio),
             pennello(cerchio.campitura, colore_fondo(doc, cerchio, usacoloriproprio)));
}

void disegnaPolilinea(distipo& doc, const polilinea& pol, bool usacoloriproprio) {
  prepara_contesto(doc.surface);
  disPolyline(doc.surface.hDC(), in_pixel(doc, pol.vertici.tutti()), contorno_di(doc, pol, usacoloriproprio));
}

void disegnarettangolo(distipo& doc, const Rettangolo& ret, bool usacoloriproprio) {
  prepara_contesto(doc.surface);
  dispoligono(doc.surface.hDC(), in_pixel(doc, ret.vertici.tutti()), contorno_di(doc, ret, usacoloriproprio),
              pennello(ret.campitura, colore_fondo(doc, ret, usacoloriproprio)));
}

void disegnasuperficie(distipo& doc, const superficie& sup, bool usacoloriproprio) {
  prepara_contesto(doc.surface);
  dispoligono(doc.surface.hDC(), in_pixel(doc, sup.vertici.tutti()), contorno_di(doc, sup, usacoloriproprio),
              pennello_superficie(sup.campitura, colore_fondo(doc, sup, usacoloriproprio)));
}

void disegna_tratto(distipo& doc, double x1, double y1, double x2, double y2, std::int32_t spessore,
                    std::int32_t tratto, Color colore) {
  Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  const double larghezza = spessore * scala / divisore_spessore;
  const conserva_tratto prima(s);
  s.DrawStyle = tratto;
  s.DrawWidth = larghezza > 1 ? round_to_int16(larghezza) : static_cast<std::int16_t>(1);
  s.Line(x1 * scala, y1 * scala, x2 * scala, y2 * scala, colore);
}

}  // namespace trelvo
