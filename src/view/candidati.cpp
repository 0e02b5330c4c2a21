#include "view/candidati.h"

#include <algorithm>

#include "view/pittura.h"
#include "view/portata.h"

namespace trelvo {

namespace {

// Beyond this part of a class a plain walk is quicker than one by positions; a few of them are no matter.
constexpr std::size_t parte_massima = 16;
constexpr std::size_t pochi = 64;

template <class Classe>
bool collocabile(const distipo& doc) {
  return doc.dis.con_luoghi && (!std::is_same_v<Classe, testo> || scala_comune(doc.vista.rapscala));
}

// Positions in order; all objects if they are too many.
template <class Classe>
candidati in_zona(const collezione<Classe>& coll, const riquadro& zona) {
  candidati c;
  c.tutti = !coll.luoghi().cerca(zona, pochi + coll.numero() / parte_massima, c.posizioni);
  if (c.tutti) c.posizioni.clear();
  std::sort(c.posizioni.begin(), c.posizioni.end());
  return c;
}

candidati tutti() { return {true, {}}; }

}  // namespace

void candidati::unisci(const std::vector<posizione_t>& altre) {
  if (tutti || altre.empty()) return;
  std::vector<posizione_t> insieme;
  std::set_union(posizioni.begin(), posizioni.end(), altre.begin(), altre.end(), std::back_inserter(insieme));
  posizioni = std::move(insieme);
}

void lascia_carattere(distipo& doc, const testo* ultimo) {
  if (ultimo != nullptr) doc.surface.font = carattere_di(*ultimo);
}

template <class Classe>
void ricerca<Classe>::colloca(distipo& doc) {
  const collezione<Classe>& coll = collezione_di<Classe>(std::as_const(doc.dis));
  const std::size_t quanti = coll.da_collocare();
  if (quanti == 0) return;
  const SurfaceFont carattere = doc.surface.font;
  indice& luoghi = coll.luoghi();
  luoghi.attendi(quanti);
  coll.colloca([&](posizione_t posizione, const Classe& o) {
    const riquadro dove = vivo(o) ? portata_di(doc, o) : riquadro::ovunque();
    luoghi.aggiorna(posizione, vivo(o) ? &dove : nullptr);
  });
  luoghi.concludi([&](posizione_t posizione) { return portata_di(doc, coll(posizione)); });
  doc.surface.font = carattere;
}

template <class Classe>
candidati ricerca<Classe>::in(distipo& doc, const finestra& f) {
  if (!a_portata(f) || !collocabile<Classe>(doc)) return tutti();
  colloca(doc);
  return in_zona(collezione_di<Classe>(std::as_const(doc.dis)), riquadro::intorno(f.x1, f.y1, f.x2, f.y2));
}

template <class Classe>
candidati ricerca<Classe>::in(distipo& doc, const mira& m) {
  if (!a_portata(m) || !collocabile<Classe>(doc)) return tutti();
  colloca(doc);
  return in_zona(collezione_di<Classe>(std::as_const(doc.dis)), zona_di(m));
}

template struct ricerca<superficie>;
template struct ricerca<Rettangolo>;
template struct ricerca<Linea>;
template struct ricerca<polilinea>;
template struct ricerca<testo>;
template struct ricerca<Arco>;
template struct ricerca<Cerchio>;

}  // namespace trelvo
