#include "view/selezione.h"

#include <utility>

#include "document/trelvobas.h"
#include "geometry/infin.h"
#include "model/punti.h"
#include "view/pittura.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr std::int16_t da_stampare = 1;

void ordina(double& x1, double& y1, double& x2, double& y2) {
  if (y1 > y2) std::swap(y1, y2);
  if (x1 > x2) std::swap(x1, x2);
}

// False for an object that was selected already.
template <class Oggetto>
bool seleziona(distipo& doc, Oggetto& o) {
  if (o.stato == stato_selezionato) return false;
  ++doc.cmd.ntrovati;
  o.stato = stato_selezionato;
  return true;
}

template <class Oggetto>
void mostra(distipo& doc, const Oggetto& o) {
  disegna(doc, o, o.stato == stato_presente);
}

// ---- pick

template <class... Classi>
void seleziona_primi(distipo& doc, const mira& m) {
  (
      [&] {
        Classi* o = primo<Classi>(doc.dis, [&](const Classi& prova) { return in_mira(doc, prova, m); });
        if (o != nullptr && seleziona(doc, *o)) mostra(doc, *o);
      }(),
      ...);
}

// ---- window

bool dentro(distipo& /*doc*/, const Linea& o, const finestra& f) { return lineainfin(f, o.Xi, o.Yi, o.Xf, o.Yf); }
bool dentro(distipo& /*doc*/, const Cerchio& o, const finestra& f) {
  return cerchioinfin(f, o.Xcentro, o.Ycentro, o.raggio);
}
bool dentro(distipo& /*doc*/, const Arco& o, const finestra& f) {
  return arcoinfin(f, o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y);
}
bool dentro(distipo& doc, const testo& o, const finestra& f) { return testoinfin(f, riquadro_mondo(doc, o)); }
template <a_vertici Oggetto>
bool dentro(distipo& /*doc*/, const Oggetto& o, const finestra& f) {
  return verticiinfin(f, o.vertici.tutti());
}

// ---- crossing window

// After a zoom the selection is applied again.
bool dopo_uno_zoom(const distipo& doc) {
  const std::string& ultimo = doc.cmd.ultimocomando;
  return ultimo == "Zoom Dinamico" || ultimo == "Zoom Tutto" || ultimo == "Zoom %" || ultimo == "Zoom Prec.";
}

// ---- stretch

// Painting the same again changes no pixel: only a trace tells how often it was asked for.
template <class Oggetto>
void mostra_per_vertice(distipo& doc, const Oggetto& o, int marcati) {
  const int volte = doc.surface.trace ? marcati : 1;
  for (int i = 0; i < volte; ++i) mostra(doc, o);
}

template <a_vertici Oggetto>
void marca(distipo& doc, Oggetto& o, const finestra& f) {
  int marcati = 0;
  int i = 0;
  for (const vertice& v : std::as_const(o).vertici.tutti()) {
    ++i;
    if (!f.contiene(v.x, v.y)) continue;
    o.ins_vertselez(1, i);
    ++marcati;
  }
  if (marcati == 0) return;
  mostra_per_vertice(doc, o, marcati);
  seleziona(doc, o);
}

// Marks of earlier windows hold.
template <class Oggetto>
void marca_estremi(distipo& doc, Oggetto& o, bool primo_dentro, bool secondo_dentro) {
  if (primo_dentro) o.vert1_selez = 1;
  if (secondo_dentro) o.vert2_selez = 1;
  if (o.vert1_selez != 1 && o.vert2_selez != 1) return;
  mostra(doc, o);
  seleziona(doc, o);
}

void marca(distipo& doc, Linea& o, const finestra& f) {
  marca_estremi(doc, o, f.contiene(o.Xi, o.Yi), f.contiene(o.Xf, o.Yf));
}

void marca(distipo& doc, Arco& o, const finestra& f) {
  marca_estremi(doc, o, f.contiene(o.p1x, o.p1y), f.contiene(o.p2x, o.p2y));
}

template <class Oggetto>
void prendi_intero(distipo& doc, Oggetto& o, const finestra& f) {
  if (!interseca(doc, o, f)) return;
  mostra(doc, o);
  seleziona(doc, o);
}

void marca(distipo& doc, testo& o, const finestra& f) { prendi_intero(doc, o, f); }
void marca(distipo& doc, Cerchio& o, const finestra& f) { prendi_intero(doc, o, f); }

}  // namespace

void selezionaoggetti(distipo& doc, double X, double Y) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  seleziona_primi<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc, {X, Y, raggio_mira(doc)});
}

void selezfin(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc.dis, [&](auto& o) {
    if (o.stato == stato_cancellato || !dentro(doc, o, f)) return;
    if (seleziona(doc, o)) mostra(doc, o);
  });
}

void selezinters(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  const std::string comando = doc.cmd.comando();
  const bool stampa = comando == "Selstamp";
  const bool di_nuovo = dopo_uno_zoom(doc);
  visita<superficie, Rettangolo, Linea, Cerchio, Arco, polilinea, testo>(doc.dis, [&](auto& o) {
    if (o.stato == stato_cancellato || (o.stato != stato_presente && !di_nuovo)) return;
    if (!interseca(doc, o, f)) return;
    if (stampa) {
      o.stampare = da_stampare;
    } else if (seleziona(doc, o) && !comando.empty()) {
      mostra(doc, o);
    }
  });
}

void selezintersStira(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc.dis, [&](auto& o) {
    if (o.stato != stato_cancellato) marca(doc, o, f);
  });
}

int conta_selezionati(const distipo& doc) {
  int n = 0;
  visita<superficie, Rettangolo, Linea, polilinea, testo, Arco, Cerchio>(
      doc.dis, [&](const auto& o) { n += o.stato == stato_selezionato ? 1 : 0; });
  return n;
}

}  // namespace trelvo
