// The points of an object, one by one, as `azione(double& x, double& y)`. Marked points are those of the last stretch
// selection.
#pragma once

#include "model/oggetti.h"

namespace trelvo {

template <class Oggetto>
concept a_vertici = requires(Oggetto& o) {
  o.vertici.tutti();
};

template <class Azione>
void per_ogni_punto(Linea& o, Azione&& azione) {
  azione(o.Xi, o.Yi);
  azione(o.Xf, o.Yf);
}

template <class Azione>
void per_ogni_punto(Arco& o, Azione&& azione) {
  azione(o.p1x, o.p1y);
  azione(o.p2x, o.p2y);
  azione(o.p3x, o.p3y);
}

template <class Azione>
void per_ogni_punto(Cerchio& o, Azione&& azione) {
  azione(o.Xcentro, o.Ycentro);
  azione(o.Xpunto, o.YPunto);
}

template <class Azione>
void per_ogni_punto(testo& o, Azione&& azione) {
  azione(o.pos_testox, o.pos_testoy);
}

template <a_vertici Oggetto, class Azione>
void per_ogni_punto(Oggetto& o, Azione&& azione) {
  for (vertice& v : o.vertici.tutti()) azione(v.x, v.y);
}

// Of the classes that a stretch deforms point by point.
template <class Azione>
void per_ogni_punto_marcato(Linea& o, Azione&& azione) {
  if (o.vert1_selez == 1) azione(o.Xi, o.Yi);
  if (o.vert2_selez == 1) azione(o.Xf, o.Yf);
}

template <a_vertici Oggetto, class Azione>
void per_ogni_punto_marcato(Oggetto& o, Azione&& azione) {
  int i = 0;
  for (vertice& v : o.vertici.tutti()) {
    if (o.prel_vertselez(++i) == 1) azione(v.x, v.y);
  }
}

}  // namespace trelvo
