#include "view/anteprima_modifica.h"

#include <utility>

#include "document/trelvobas.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/pigreco.h"
#include "geometry/trasformazioni.h"
#include "platform/numbers.h"
#include "view/pittura.h"
#include "view/punti.h"

namespace trelvo {

namespace {

// Paints a transformed copy of every selected object; a copy is made over the former one, which spares its memory.
template <class Classe, class Trasforma>
void dipingi_classe(distipo& doc, Trasforma& trasforma) {
  Classe copia;
  for (const Classe& o : collezione_di<Classe>(std::as_const(doc.dis))) {
    if (o.stato != stato_selezionato) continue;
    copia = o;
    trasforma(copia);
    disegna(doc, copia, true);
  }
}

template <class Trasforma>
void dipingi(distipo& doc, Trasforma trasforma) {
  doc.surface.Cls();
  dipingi_classe<superficie>(doc, trasforma);
  dipingi_classe<Linea>(doc, trasforma);
  dipingi_classe<Rettangolo>(doc, trasforma);
  dipingi_classe<testo>(doc, trasforma);
  dipingi_classe<Cerchio>(doc, trasforma);
  dipingi_classe<Arco>(doc, trasforma);
  dipingi_classe<polilinea>(doc, trasforma);
}

struct stiramento {
  double DX;
  double DY;

  void sposta(double& x, double& y) const {
    x += DX;
    y += DY;
  }
  void vertici(elencovertici& elenco) const {
    const auto punti = elenco.tutti();
    for (std::size_t i = 0; i < punti.size(); ++i) {
      if (elenco.selezionato(static_cast<int>(i) + 1) == 1) sposta(punti[i].x, punti[i].y);
    }
  }
  void operator()(superficie& o) const { vertici(o.vertici); }
  void operator()(Rettangolo& o) const { vertici(o.vertici); }
  void operator()(polilinea& o) const { vertici(o.vertici); }
  void operator()(Linea& o) const {
    if (o.vert1_selez == 1) sposta(o.Xi, o.Yi);
    if (o.vert2_selez == 1) sposta(o.Xf, o.Yf);
  }
  void operator()(Arco& o) const {
    if (o.vert1_selez == 1) sposta(o.p1x, o.p1y);
    if (o.vert2_selez == 1) sposta(o.p2x, o.p2y);
    if (o.vert1_selez == 1 && o.vert2_selez == 1) sposta(o.p3x, o.p3y);
    double Xc = 0;
    double Yc = 0;
    double R = 0;
    cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, Xc, Yc, R);
    if (detPinArco(o.p3x, o.p3y, Xc, Yc, o.p1x, o.p1y, o.p2x, o.p2y)) return;
    std::swap(o.p1x, o.p2x);
    std::swap(o.p1y, o.p2y);
  }
  // Texts and circles move whole.
  void operator()(testo& o) const { sposta(o.pos_testox, o.pos_testoy); }
  void operator()(Cerchio& o) const {
    sposta(o.Xcentro, o.Ycentro);
    sposta(o.Xpunto, o.YPunto);
  }
};

void anteprima_ruota(distipo& doc, const banda& b) {
  const double angolo = detAngolo(b.ax, b.ay, b.bx, b.by);
  doc.bas.frmMain.Text2.Text = number_text(angolo * 180 / pigreco);
  const double gradi_testo = variazione_ang_testo(b.DX, b.DY);
  dipingi(doc, [&](auto& o) {
    per_ogni_punto(o, [&](double& x, double& y) { ruota_punto(b.ax, b.ay, angolo, x, y); });
    if constexpr (requires { o.dimens_testo; }) o.ang_testo(round_to_int32(o.angolo() + gradi_testo));
  });
}

void anteprima_specchio(distipo& doc, const banda& b) {
  const specchio asse(b.ax, b.ay, b.bx, b.by);
  dipingi(doc, [&](auto& o) { per_ogni_punto(o, [&](double& x, double& y) { asse.rifletti(x, y); }); });
}

}  // namespace

void anteprima_modifica(distipo& doc, const std::string& comando, const banda& b) {
  if (comando == "Ruota") {
    anteprima_ruota(doc, b);
  } else if (comando == "Specchio") {
    anteprima_specchio(doc, b);
  } else if (comando == "Stira") {
    dipingi(doc, stiramento{b.DX, b.DY});
  } else {
    dipingi(doc, [&](auto& o) {
      per_ogni_punto(o, [&](double& x, double& y) {
        x += b.DX;
        y += b.DY;
      });
    });
  }
}

}  // namespace trelvo
