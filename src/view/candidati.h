// Walks over the objects that an exact test of the view may accept: a test passed by one of them tells what it would
// tell in a walk over all, since every object that it could accept is among them, in collection order.
//
// The places of a class are found at the first question, and kept from then on. Where a question would give a good part
// of the class, the walk is a plain one.
#pragma once

#include <type_traits>
#include <utility>
#include <vector>

#include "document/distipo.h"
#include "geometry/finestra.h"
#include "view/selezione_mira.h"

namespace trelvo {

// Positions in order, or all.
struct candidati {
  bool tutti = false;
  std::vector<posizione_t> posizioni;

  // Makes room for others, which are in order too.
  void unisci(const std::vector<posizione_t>& altre);
};

// The questions about a class; each brings its places up to date first.
template <class Classe>
struct ricerca {
  static candidati in(distipo& doc, const finestra& f);
  static candidati in(distipo& doc, const mira& m);
  static void colloca(distipo& doc);
};

// The tests measure texts with the surface's own font, and leave it as the last text that they measured has it.
// nullptr for none.
void lascia_carattere(distipo& doc, const testo* ultimo);

// The last object that passes; nullptr for none.
template <class Classe, class Ammesso>
const Classe* ultimo(const collezione<Classe>& coll, Ammesso&& ammesso) {
  for (std::size_t posizione = coll.numero(); posizione > 0; --posizione) {
    const Classe& o = coll(posizione);
    if (ammesso(o)) return &o;
  }
  return nullptr;
}

// Calls azione(posizione, oggetto) for the candidates that `ammesso` lets through, in order, until it gives true. The
// action tests the object, as a plain walk would every object of the class.
template <class Classe, class Ammesso, class Azione>
bool per_candidati(distipo& doc, const candidati& c, Ammesso&& ammesso, Azione&& azione) {
  const collezione<Classe>& coll = collezione_di<Classe>(std::as_const(doc.dis));
  if (c.tutti) {
    posizione_t posizione = 0;
    for (const Classe& o : coll) {
      ++posizione;
      if (ammesso(o) && azione(posizione, o)) return true;
    }
    return false;
  }
  const testo* misurato = nullptr;  // the last one that a plain walk would measure
  if constexpr (std::is_same_v<Classe, testo>) misurato = ultimo(coll, ammesso);
  const auto prova = [&](posizione_t posizione, const Classe& o) { return ammesso(o) && azione(posizione, o); };
  if (coll.per_posizioni(c.posizioni, prova)) return true;
  lascia_carattere(doc, misurato);
  return false;
}

template <class Oggetto>
bool vivo(const Oggetto& o) {
  return o.stato != stato_cancellato;
}

// The first live object of a class whose test by the pick passes, by its position; 0 for none.
template <class Classe, class Prova>
posizione_t primo(distipo& doc, const mira& m, Prova&& prova) {
  posizione_t trovato = 0;
  per_candidati<Classe>(doc, ricerca<Classe>::in(doc, m), vivo<Classe>, [&](posizione_t posizione, const Classe& o) {
    if (!prova(o)) return false;
    trovato = posizione;
    return true;
  });
  return trovato;
}

}  // namespace trelvo
