// The points that shape an object, whatever its class: one walk for whoever moves, turns or mirrors them.
#pragma once

#include "model/oggetti.h"

namespace trelvo {

// `azione` is given x and y by reference.
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
template <class Azione>
void per_ogni_vertice(elencovertici& vertici, Azione&& azione) {
  for (vertice& v : vertici.tutti()) azione(v.x, v.y);
}
template <class Azione>
void per_ogni_punto(polilinea& o, Azione&& azione) {
  per_ogni_vertice(o.vertici, azione);
}
template <class Azione>
void per_ogni_punto(Rettangolo& o, Azione&& azione) {
  per_ogni_vertice(o.vertici, azione);
}
template <class Azione>
void per_ogni_punto(superficie& o, Azione&& azione) {
  per_ogni_vertice(o.vertici, azione);
}

}  // namespace trelvo
