#include "view/aggancio.h"

#include <utility>

#include "document/trelvobas.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/mira.h"
#include "model/punti.h"
#include "view/candidati.h"
#include "view/pittura.h"
#include "view/selezione_mira.h"

namespace trelvo {

namespace {

constexpr int inizio = 2;
constexpr int fine = 3;
constexpr int medio = 4;
constexpr int centro = 6;

void prendi(statofiltro& filtro, double x, double y) {
  filtro.xfiltro = x;
  filtro.yfiltro = y;
}

// ---- edges

struct tratto {
  vertice a;
  vertice b;
};

bool tratto_in_mira(distipo& doc, const Linea& o, const mira& m, tratto& t) {
  t = {{o.Xi, o.Yi}, {o.Xf, o.Yf}};
  return in_mira(doc, o, m);
}

// The edge, not the whole object; the closing one runs from the first vertex to the last.
template <a_vertici Oggetto>
bool tratto_in_mira(distipo& /*doc*/, const Oggetto& o, const mira& m, tratto& t) {
  const std::span<const vertice> vertici = o.vertici.tutti();
  constexpr bool chiusa = !std::is_same_v<Oggetto, polilinea>;
  std::size_t lato = 0;
  if (!spezzata_in_mira(m.X, m.Y, m.R, vertici, chiusa, lato)) return false;
  if (lato + 1 == vertici.size()) {
    t = {vertici.front(), vertici.back()};
  } else {
    t = {vertici[lato], vertici[lato + 1]};
  }
  return true;
}

// The edges of the box alone; the last one runs back to the anchor.
bool tratto_in_mira(distipo& doc, const testo& o, const mira& m, tratto& t) {
  const riquadro_testo r = riquadro_mondo(doc, o);
  std::size_t i = 0;
  if (!riquadro_in_mira(m.X, m.Y, m.R, r, i)) return false;
  const std::size_t j = (i + 1) % 4;
  t = {{r.x[i], r.y[i]}, {r.x[j], r.y[j]}};
  return true;
}

void aggancia_tratto(statofiltro& filtro, const tratto& t) {
  if (filtro.filtroattivo == inizio) prendi(filtro, t.a.x, t.a.y);
  if (filtro.filtroattivo == fine) prendi(filtro, t.b.x, t.b.y);
  if (filtro.filtroattivo == medio) prendi(filtro, (t.a.x + t.b.x) / 2, (t.a.y + t.b.y) / 2);
}

template <class... Classi>
bool cerca_tratto(distipo& doc, const mira& m) {
  tratto t;
  const bool trovato =
      ((primo<Classi>(doc, m, [&](const Classi& o) { return tratto_in_mira(doc, o, m, t); }) != 0) || ...);
  if (trovato) aggancia_tratto(doc.filtro, t);
  return trovato;
}

// ---- arcs and circles

// Where the line through the centre and the middle of the chord meets the arc. An arc that refuses both points keeps
// the point from before.
void aggancia_medio(statofiltro& filtro, const Arco& o, double xc, double yc, double raggio) {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  std::int16_t flag1 = 0;
  std::int16_t flag2 = 0;
  detinters_cerchio_segmento(xc, yc, raggio, xc, yc, (o.p2x + o.p1x) / 2, (o.p2y + o.p1y) / 2, x1, y1, x2, y2, flag1,
                             flag2);
  if (detPinArco(x1, y1, xc, yc, o.p1x, o.p1y, o.p2x, o.p2y)) {
    prendi(filtro, x1, y1);
  } else if (detPinArco(x2, y2, xc, yc, o.p1x, o.p1y, o.p2x, o.p2y)) {
    prendi(filtro, x2, y2);
  }
}

void aggancia_arco(statofiltro& filtro, const Arco& o) {
  double xc = 0;
  double yc = 0;
  double raggio = 0;
  cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, xc, yc, raggio);
  if (filtro.filtroattivo == inizio) prendi(filtro, o.p1x, o.p1y);
  if (filtro.filtroattivo == fine) prendi(filtro, o.p2x, o.p2y);
  if (filtro.filtroattivo == medio) aggancia_medio(filtro, o, xc, yc, raggio);
  if (filtro.filtroattivo == centro) prendi(filtro, xc, yc);
}

bool cerca_arco(distipo& doc, const mira& m) {
  const posizione_t p = primo<Arco>(doc, m, [&](const Arco& prova) { return in_mira(doc, prova, m); });
  if (p != 0) aggancia_arco(doc.filtro, std::as_const(doc.dis.collArchi)(p));
  return p != 0;
}

bool cerca_cerchio(distipo& doc, const mira& m) {
  const posizione_t p = primo<Cerchio>(doc, m, [&](const Cerchio& prova) { return in_mira(doc, prova, m); });
  if (p == 0) return false;
  const Cerchio& o = std::as_const(doc.dis.collCerchi)(p);
  prendi(doc.filtro, o.Xcentro, o.Ycentro);
  return true;
}

bool cerca(distipo& doc, const mira& m) {
  switch (doc.filtro.filtroattivo) {
    case inizio:
    case fine:
    case medio:
      return cerca_tratto<superficie, Linea, Rettangolo, testo, polilinea>(doc, m) || cerca_arco(doc, m);
    case centro:
      return cerca_arco(doc, m) || cerca_cerchio(doc, m);
    default:
      return false;
  }
}

}  // namespace

void selezoggettifiltri(distipo& doc, double X, double Y) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  if (cerca(doc, {X, Y, raggio_mira(doc)})) doc.filtro.trovatofiltro = 1;
}

}  // namespace trelvo
