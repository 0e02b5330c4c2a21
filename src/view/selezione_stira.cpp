#include <utility>

#include "document/trelvobas.h"
#include "view/pittura.h"
#include "view/redraw.h"
#include "view/selezione.h"

namespace trelvo {

namespace {

// Each point in the window is marked; marks outside it stay as they are. True if the object is to be selected. What is
// painted has still the colour of its old state.
template <class Oggetto>
bool marca(distipo& doc, Oggetto& o, const finestra& f) {
  const bool proprio = o.stato != stato_selezionato;
  if constexpr (requires { o.vertici; }) {
    bool trovato = false;
    for (int i = 1; i <= o.vertic(); ++i) {
      const vertice& v = o.vertici.preleva(i);
      if (!f.contiene(v.x, v.y)) continue;
      o.ins_vertselez(1, i);
      trovato = true;
      disegna(doc, o, proprio);
    }
    return trovato;
  } else if constexpr (requires { o.Xi; }) {
    if (f.contiene(o.Xi, o.Yi)) o.vert1_selez = 1;
    if (f.contiene(o.Xf, o.Yf)) o.vert2_selez = 1;
  } else if constexpr (requires { o.p1x; }) {
    if (f.contiene(o.p1x, o.p1y)) o.vert1_selez = 1;
    if (f.contiene(o.p2x, o.p2y)) o.vert2_selez = 1;
  } else {
    if (!interseca(doc, o, f)) return false;
    disegna(doc, o, proprio);
    return true;
  }
  if constexpr (requires { o.vert1_selez; }) {
    if (o.vert1_selez != 1 && o.vert2_selez != 1) return false;
    disegna(doc, o, proprio);
    return true;
  }
}

}  // namespace

void selezintersStira(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  if (y1 > y2) std::swap(y1, y2);
  if (x1 > x2) std::swap(x1, x2);
  const finestra f{x1, y1, x2, y2};
  visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc.dis, [&](auto& o) {
    if (o.stato == stato_cancellato || !marca(doc, o, f) || o.stato == stato_selezionato) return;
    ++doc.cmd.ntrovati;
    o.stato = stato_selezionato;
  });
}

}  // namespace trelvo
