#include "edit/passi.h"

#include <cmath>
#include <utility>

#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/misure.h"
#include "geometry/pigreco.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace trelvo {

namespace {

double finito(double valore) {
  if (!std::isfinite(valore)) throw RuntimeError(error_overflow);
  return valore;
}

template <a_vertici Oggetto>
void stira_vertici(Oggetto& o, const punti_comando& p) {
  per_ogni_punto_marcato(o, traslazione(p));
  for (int i = 1; i <= o.vertic(); ++i) {
    if (o.prel_vertselez(i) == 1) o.ins_vertselez(0, i);
  }
}

template <a_vertici Oggetto>
void rimisura(Oggetto& o) {
  o.perimet = perimetro(o.vertici.tutti());
  o.supf = area(o.vertici.tutti());
}

// Leaves the point as it is for an arc that has none.
void prendi_centro(const Arco& o, double& x, double& y) {
  double xc = x;
  double yc = y;
  double raggio = 0;
  cerchio_per_tre_punti(o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, xc, yc, raggio);
  if (!std::isfinite(xc) || !std::isfinite(yc)) return;
  x = xc;
  y = yc;
}

}  // namespace

double punti_comando::dx() const { return finito(x2 - x1); }
double punti_comando::dy() const { return finito(y2 - y1); }
double punti_comando::radianti() const { return finito(x2 * pigreco / 180); }

riflessione::riflessione(const punti_comando& p) : asse(p.x1, p.y1, p.x2, p.y2) {
  finito(p.dx());
  finito(p.dy());
}

void ruota(testo& o, const rotazione& r) {
  const double d =
      std::sqrt((o.pos_testox - r.xc) * (o.pos_testox - r.xc) + (o.pos_testoy - r.yc) * (o.pos_testoy - r.yc));
  trasforma(o, r);
  // Half a command would be worse than an angle held at the end of its type.
  o.ang_testo(round_clamped(o.ang_testo() + variazione_ang_testo_ruotato(d, r.radianti)));
}

void specchia(Arco& o, const riflessione& r) {
  trasforma(o, r);
  std::swap(o.p1x, o.p2x);
  std::swap(o.p1y, o.p2y);
}

void stira(Linea& o, punti_comando& p) {
  per_ogni_punto_marcato(o, traslazione(p));
  if (o.vert1_selez == 1) o.vert1_selez = 0;
  if (o.vert2_selez == 1) o.vert2_selez = 0;
}

void stira(polilinea& o, punti_comando& p) { stira_vertici(o, p); }

void stira(Rettangolo& o, punti_comando& p) {
  stira_vertici(o, p);
  rimisura(o);
}

void stira(superficie& o, punti_comando& p) {
  stira_vertici(o, p);
  rimisura(o);
}

void stira(Arco& o, punti_comando& p) {
  const traslazione t(p);
  if (o.vert1_selez == 1) t(o.p1x, o.p1y);
  if (o.vert2_selez == 1) t(o.p2x, o.p2y);
  if (o.vert1_selez == 1 || o.vert2_selez == 1) {
    t(o.p3x, o.p3y);
    prendi_centro(o, p.x1, p.y1);
    if (!detPinArco(o.p3x, o.p3y, p.x1, p.y1, o.p1x, o.p1y, o.p2x, o.p2y)) {
      std::swap(o.p1x, o.p2x);
      std::swap(o.p1y, o.p2y);
    }
  }
  o.vert1_selez = 0;
  o.vert2_selez = 0;
}

void stira(Cerchio& o, punti_comando& p) { trasforma(o, traslazione(p)); }
void stira(testo& o, punti_comando& p) { trasforma(o, traslazione(p)); }

}  // namespace trelvo
