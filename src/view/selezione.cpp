#include "view/selezione.h"

#include <utility>

#include "document/trelvobas.h"
#include "geometry/infin.h"
#include "model/punti.h"
#include "view/candidati.h"
#include "view/pittura.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr std::int16_t da_stampare = 1;

constexpr auto vivi = [](const auto& o) { return vivo(o); };

void ordina(double& x1, double& y1, double& x2, double& y2) {
  if (y1 > y2) std::swap(y1, y2);
  if (x1 > x2) std::swap(x1, x2);
}

// An object is written to where it changes, and read elsewhere.
template <class Classe>
Classe& da_cambiare(distipo& doc, posizione_t posizione) {
  return collezione_di<Classe>(doc.dis)(posizione);
}
template <class Classe>
const Classe& oggetto(const distipo& doc, posizione_t posizione) {
  return collezione_di<Classe>(doc.dis)(posizione);
}

// False for an object that was selected already.
template <class Oggetto>
bool seleziona(distipo& doc, const Oggetto& o, posizione_t posizione) {
  if (o.stato == stato_selezionato) return false;
  ++doc.cmd.ntrovati;
  da_cambiare<Oggetto>(doc, posizione).stato = stato_selezionato;
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
        const posizione_t p = primo<Classi>(doc, m, [&](const Classi& prova) { return in_mira(doc, prova, m); });
        if (p == 0) return;
        const Classi& o = oggetto<Classi>(doc, p);
        if (seleziona(doc, o, p)) mostra(doc, o);
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
void marca(distipo& doc, const Oggetto& o, posizione_t posizione, const finestra& f) {
  int marcati = 0;
  int i = 0;
  for (const vertice& v : o.vertici.tutti()) {
    ++i;
    if (!f.contiene(v.x, v.y)) continue;
    da_cambiare<Oggetto>(doc, posizione).ins_vertselez(1, i);
    ++marcati;
  }
  if (marcati == 0) return;
  mostra_per_vertice(doc, o, marcati);
  seleziona(doc, o, posizione);
}

// Marks of earlier windows hold.
template <class Oggetto>
void marca_estremi(distipo& doc, const Oggetto& o, posizione_t posizione, bool primo_dentro, bool secondo_dentro) {
  if (primo_dentro) da_cambiare<Oggetto>(doc, posizione).vert1_selez = 1;
  if (secondo_dentro) da_cambiare<Oggetto>(doc, posizione).vert2_selez = 1;
  if (o.vert1_selez != 1 && o.vert2_selez != 1) return;
  mostra(doc, o);
  seleziona(doc, o, posizione);
}

void marca(distipo& doc, const Linea& o, posizione_t posizione, const finestra& f) {
  marca_estremi(doc, o, posizione, f.contiene(o.Xi, o.Yi), f.contiene(o.Xf, o.Yf));
}

void marca(distipo& doc, const Arco& o, posizione_t posizione, const finestra& f) {
  marca_estremi(doc, o, posizione, f.contiene(o.p1x, o.p1y), f.contiene(o.p2x, o.p2y));
}

template <class Oggetto>
void prendi_intero(distipo& doc, const Oggetto& o, posizione_t posizione, const finestra& f) {
  if (!interseca(doc, o, f)) return;
  mostra(doc, o);
  seleziona(doc, o, posizione);
}

void marca(distipo& doc, const testo& o, posizione_t posizione, const finestra& f) {
  prendi_intero(doc, o, posizione, f);
}
void marca(distipo& doc, const Cerchio& o, posizione_t posizione, const finestra& f) {
  prendi_intero(doc, o, posizione, f);
}

// ---- walks

// Calls azione(oggetto, posizione) for the candidates of each class that `ammesso` lets through.
template <class Classe, class Ammesso, class Azione>
void per_classe(distipo& doc, const candidati& c, const Ammesso& ammesso, const Azione& azione) {
  per_candidati<Classe>(doc, c, ammesso, [&](posizione_t posizione, const Classe& o) {
    azione(o, posizione);
    return false;
  });
}

template <class... Classi, class Ammesso, class Azione>
void per_ogni(distipo& doc, const finestra& f, const Ammesso& ammesso, const Azione& azione) {
  (per_classe<Classi>(doc, ricerca<Classi>::in(doc, f), ammesso, azione), ...);
}

// What has a mark from before is taken up again by any window.
template <class Classe>
candidati candidati_stira(distipo& doc, const finestra& f) {
  candidati c = ricerca<Classe>::in(doc, f);
  if constexpr (requires(Classe o) { o.vert1_selez; }) {
    c.unisci(collezione_di<Classe>(std::as_const(doc.dis)).in_uso());
  }
  return c;
}

template <class... Classi>
void marca_ogni(distipo& doc, const finestra& f) {
  const auto azione = [&](const auto& o, posizione_t posizione) { marca(doc, o, posizione, f); };
  (per_classe<Classi>(doc, candidati_stira<Classi>(doc, f), vivi, azione), ...);
}

}  // namespace

void selezionaoggetti(distipo& doc, double X, double Y) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  seleziona_primi<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc, {X, Y, raggio_mira(doc)});
}

void selezfin(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  per_ogni<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(
      doc, f, vivi, [&](const auto& o, posizione_t posizione) {
        if (dentro(doc, o, f) && seleziona(doc, o, posizione)) mostra(doc, o);
      });
}

void selezinters(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  const std::string comando = doc.cmd.comando();
  const bool stampa = comando == "Selstamp";
  const bool di_nuovo = dopo_uno_zoom(doc);
  const auto ammessi = [&](const auto& o) { return vivo(o) && (o.stato == stato_presente || di_nuovo); };
  per_ogni<superficie, Rettangolo, Linea, Cerchio, Arco, polilinea, testo>(
      doc, f, ammessi, [&]<class Classe>(const Classe& o, posizione_t posizione) {
        if (!interseca(doc, o, f)) return;
        if (stampa) {
          da_cambiare<Classe>(doc, posizione).stampare = da_stampare;
        } else if (seleziona(doc, o, posizione) && !comando.empty()) {
          mostra(doc, o);
        }
      });
}

void selezintersStira(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  ordina(x1, y1, x2, y2);
  const finestra f{x1, y1, x2, y2};
  marca_ogni<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc, f);
}

int conta_selezionati(const distipo& doc) {
  int n = 0;
  visita_selezionati<superficie, Rettangolo, Linea, polilinea, testo, Arco, Cerchio>(doc.dis,
                                                                                     [&](const auto& /*o*/) { ++n; });
  return n;
}

}  // namespace trelvo
