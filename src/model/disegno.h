// A drawing: seven ordered collections, one a class. An object is known by its position, counted from 1.
#pragma once

#include <type_traits>
#include <utility>

#include "model/collezione.h"
#include "model/oggetti.h"

namespace trelvo {

struct disegno {
  collezione<superficie> collSuperfici;
  collezione<Rettangolo> collRettangoli;
  collezione<Linea> collLinee;
  collezione<polilinea> collPolilinee;
  collezione<testo> collTesti;
  collezione<Arco> collArchi;
  collezione<Cerchio> collCerchi;

  // False makes every walk of the view a plain one over all objects, for comparison.
  bool con_luoghi = true;

  // Another number whenever an object may have changed; 0 for a drawing that was never touched.
  std::uint64_t revisione() const {
    return collSuperfici.scritture() + collRettangoli.scritture() + collLinee.scritture() + collPolilinee.scritture() +
           collTesti.scritture() + collArchi.scritture() + collCerchi.scritture();
  }
};

template <class Classe>
auto& collezione_di(disegno& dis) {
  if constexpr (std::is_same_v<Classe, superficie>) {
    return dis.collSuperfici;
  } else if constexpr (std::is_same_v<Classe, Rettangolo>) {
    return dis.collRettangoli;
  } else if constexpr (std::is_same_v<Classe, Linea>) {
    return dis.collLinee;
  } else if constexpr (std::is_same_v<Classe, polilinea>) {
    return dis.collPolilinee;
  } else if constexpr (std::is_same_v<Classe, testo>) {
    return dis.collTesti;
  } else if constexpr (std::is_same_v<Classe, Arco>) {
    return dis.collArchi;
  } else {
    static_assert(std::is_same_v<Classe, Cerchio>);
    return dis.collCerchi;
  }
}

template <class Classe>
const auto& collezione_di(const disegno& dis) {
  return collezione_di<Classe>(const_cast<disegno&>(dis));
}

// Visits every object of the named classes, class by class in the order named: each walk says its own order. A walk
// that writes nothing had better take the drawing as const (collezione.h).
template <class... Classi, class Visita>
void visita(disegno& dis, Visita&& azione) {
  (
      [&] {
        for (auto& oggetto : collezione_di<Classi>(dis)) azione(oggetto);
      }(),
      ...);
}

template <class... Classi, class Visita>
void visita(const disegno& dis, Visita&& azione) {
  (
      [&] {
        for (const auto& oggetto : collezione_di<Classi>(dis)) azione(oggetto);
      }(),
      ...);
}

// The same for the selected ones alone, at the cost of these. Objects that are added meanwhile are not visited.
template <class... Classi, class Disegno, class Visita>
void visita_selezionati(Disegno& dis, Visita&& azione) {
  (
      [&] {
        auto& coll = collezione_di<Classi>(dis);
        const auto visita_uno = [&](posizione_t posizione, const Classi& oggetto) {
          if (oggetto.stato == stato_selezionato) azione(coll(posizione));
          return false;
        };
        if (dis.con_luoghi) {
          std::as_const(coll).per_posizioni(coll.in_uso(), visita_uno);
          return;
        }
        const auto numero = static_cast<posizione_t>(coll.numero());
        for (posizione_t p = 1; p <= numero; ++p) visita_uno(p, std::as_const(coll)(p));
      }(),
      ...);
}

}  // namespace trelvo
