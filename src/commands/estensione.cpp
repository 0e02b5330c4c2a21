#include <algorithm>
#include <cmath>
#include <utility>

#include "commands/zoom.h"
#include "geometry/cerchi.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

// A coordinate that is no number has no place in the extents.
void allarga(statovista& v, double x, double y) {
  if (std::isfinite(x)) {
    v.xmindis = std::min(v.xmindis, x);
    v.xmaxdis = std::max(v.xmaxdis, x);
  }
  if (std::isfinite(y)) {
    v.ymindis = std::min(v.ymindis, y);
    v.ymaxdis = std::max(v.ymaxdis, y);
  }
}

void allarga_tondo(statovista& v, double x, double y, double raggio) {
  allarga(v, x - raggio, y - raggio);
  allarga(v, x + raggio, y + raggio);
}

template <class Oggetto>
void allarga_a(distipo& doc, const Oggetto& o) {
  statovista& v = doc.vista;
  if constexpr (requires { o.vertici; }) {
    for (const vertice& p : o.vertici.tutti()) allarga(v, p.x, p.y);
  } else if constexpr (requires { o.Xi; }) {
    allarga(v, o.Xi, o.Yi);
    allarga(v, o.Xf, o.Yf);
  } else if constexpr (requires { o.raggio; }) {
    allarga_tondo(v, o.Xcentro, o.Ycentro, o.raggio);
  } else if constexpr (requires { o.p3x; }) {
    double Xc = 0;
    double Yc = 0;
    double R = 0;
    cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, Xc, Yc, R);
    allarga_tondo(v, Xc, Yc, R);
  } else {
    const riquadro_testo r = riquadro_mondo(doc, o);
    for (std::size_t i = 0; i < 4; ++i) allarga(v, r.x[i], r.y[i]);
  }
}

}  // namespace

void determxymin_xymax(distipo& doc) {
  statovista& v = doc.vista;
  v.xmindis = v.ymindis = v.xmaxdis = v.ymaxdis = 0;
  visita<superficie, polilinea, Rettangolo, Linea, Cerchio, Arco, testo>(std::as_const(doc.dis),
                                                                         [&](const auto& oggetto) {
                                                                           if (oggetto.stato != stato_cancellato)
                                                                             allarga_a(doc, oggetto);
                                                                         });
}

}  // namespace trelvo
