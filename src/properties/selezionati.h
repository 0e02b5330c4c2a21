// Walks over the selected objects of one class.
#pragma once

#include <cstddef>
#include <utility>

#include "model/disegno.h"

namespace trelvo {

// How many are selected, and the position of the first, from 1; 0 for none.
struct scelti {
  std::size_t numero = 0;
  std::size_t primo = 0;
};

template <class Classe>
scelti conta_scelti(const collezione<Classe>& coll) {
  scelti s;
  std::size_t posizione = 0;
  for (const Classe& o : coll) {
    ++posizione;
    if (o.stato != stato_selezionato) continue;
    if (s.numero++ == 0) s.primo = posizione;
  }
  return s;
}

// True if the selected ones agree on what `valore` reads from them.
template <class Classe, class Valore>
bool concordi(const collezione<Classe>& coll, Valore&& valore) {
  const Classe* prima = nullptr;
  for (const Classe& o : coll) {
    if (o.stato != stato_selezionato) continue;
    if (prima != nullptr && !(valore(*prima) == valore(o))) return false;
    prima = &o;
  }
  return true;
}

template <class Classe, class Azione>
void per_scelti(disegno& dis, Azione&& azione) {
  collezione<Classe>& coll = collezione_di<Classe>(dis);
  const std::size_t numero = coll.numero();
  for (std::size_t i = 1; i <= numero; ++i) {
    if (std::as_const(coll)(i).stato == stato_selezionato) azione(coll(i));
  }
}

// The object that a dialog of one object stands for; nullptr if none is selected.
template <class Classe>
const Classe* primo_scelto(const disegno& dis) {
  const collezione<Classe>& coll = collezione_di<Classe>(dis);
  const scelti s = conta_scelti(coll);
  return s.numero == 0 ? nullptr : &coll(s.primo);
}

}  // namespace trelvo
