// The steps of the edit commands on one object, where the classes differ.
#pragma once

#include "document/reccomando.h"
#include "geometry/trasformazioni.h"
#include "model/punti.h"

namespace trelvo {

// The points of a command, and what follows from them. Error 6 for results that are too large.
class punti_comando {
 public:
  explicit punti_comando(const reccomando& r) : x1(r.x1), y1(r.y1), x2(r.x2), y2(r.y2) {}

  double dx() const;
  double dy() const;
  double radianti() const;

  double x1;
  double y1;
  double x2;
  double y2;
};

struct traslazione {
  explicit traslazione(const punti_comando& p) : dx(p.dx()), dy(p.dy()) {}
  void operator()(double& x, double& y) const {
    x += dx;
    y += dy;
  }
  double dx;
  double dy;
};

struct rotazione {
  explicit rotazione(const punti_comando& p) : xc(p.x1), yc(p.y1), radianti(p.radianti()) {}
  void operator()(double& x, double& y) const { ruota_punto(xc, yc, radianti, x, y); }
  double xc;
  double yc;
  double radianti;
};

struct riflessione {
  explicit riflessione(const punti_comando& p);
  void operator()(double& x, double& y) const { asse.rifletti(x, y); }
  specchio asse;
};

// Every point moves.
template <class Oggetto, class Trasforma>
void trasforma(Oggetto& o, const Trasforma& t) {
  per_ogni_punto(o, t);
}

// The centre moves, and the point on the rim is put back to the right of it.
template <class Trasforma>
void trasforma(Cerchio& o, const Trasforma& t) {
  t(o.Xcentro, o.Ycentro);
  o.Xpunto = o.Xcentro + o.raggio;
  o.YPunto = o.Ycentro;
}

template <class Oggetto>
void ruota(Oggetto& o, const rotazione& r) {
  trasforma(o, r);
}
// Turns its angle along.
void ruota(testo& o, const rotazione& r);

template <class Oggetto>
void specchia(Oggetto& o, const riflessione& r) {
  trasforma(o, r);
}
// Its ends change places.
void specchia(Arco& o, const riflessione& r);

// Moves the marked points and clears their marks.
void stira(Linea& o, punti_comando& p);
void stira(polilinea& o, punti_comando& p);
// Measured anew, marked or not.
void stira(Rettangolo& o, punti_comando& p);
void stira(superficie& o, punti_comando& p);
// The third point goes with either end; an arc that was stretched leaves its centre as first point for the next one.
void stira(Arco& o, punti_comando& p);
// Move whole.
void stira(Cerchio& o, punti_comando& p);
void stira(testo& o, punti_comando& p);

}  // namespace trelvo
