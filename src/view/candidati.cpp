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

// Positions in order, each once; all objects if they are too many.
class raccolta {
 public:
  explicit raccolta(std::size_t numero) : massimo_(pochi + numero / parte_massima) {}
  void cerca(const indice& i, const riquadro& zona) { c_.tutti = c_.tutti || !i.cerca(zona, massimo_, c_.posizioni); }
  candidati esito() {
    std::vector<posizione_t>& p = c_.posizioni;
    if (c_.tutti) p.clear();
    std::sort(p.begin(), p.end());
    p.erase(std::unique(p.begin(), p.end()), p.end());
    return std::move(c_);
  }

 private:
  std::size_t massimo_;
  candidati c_;
};

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
  indici& luoghi = coll.luoghi();
  luoghi.vicini.attendi(quanti);
  coll.colloca([&](posizione_t posizione, const Classe& o) {
    const portata p = vivo(o) ? portata_di(doc, o) : portata{};
    luoghi.vicini.aggiorna(posizione, vivo(o) ? &p.vicino : nullptr);
    luoghi.lontani.aggiorna(posizione, p.lontano ? &*p.lontano : nullptr);
  });
  luoghi.vicini.concludi([&](posizione_t posizione) { return portata_di(doc, coll(posizione)).vicino; });
  luoghi.lontani.concludi([&](posizione_t posizione) { return *portata_di(doc, coll(posizione)).lontano; });
  doc.surface.font = carattere;
}

template <class Classe>
candidati ricerca<Classe>::in(distipo& doc, const finestra& f) {
  if (!a_portata(f) || !collocabile<Classe>(doc)) return tutti();
  colloca(doc);
  const collezione<Classe>& coll = collezione_di<Classe>(std::as_const(doc.dis));
  raccolta r(coll.numero());
  r.cerca(coll.luoghi().vicini, riquadro::intorno(f.x1, f.y1, f.x2, f.y2));
  return r.esito();
}

template <class Classe>
candidati ricerca<Classe>::in(distipo& doc, const mira& m) {
  if (!a_portata(m) || !collocabile<Classe>(doc)) return tutti();
  colloca(doc);
  const collezione<Classe>& coll = collezione_di<Classe>(std::as_const(doc.dis));
  raccolta r(coll.numero());
  r.cerca(coll.luoghi().vicini, zona_di(m));
  r.cerca(coll.luoghi().lontani, riga_di(m));
  return r.esito();
}

template struct ricerca<superficie>;
template struct ricerca<Rettangolo>;
template struct ricerca<Linea>;
template struct ricerca<polilinea>;
template struct ricerca<testo>;
template struct ricerca<Arco>;
template struct ricerca<Cerchio>;

}  // namespace trelvo
