#include "model/indice.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace trelvo {

namespace {

// Members of a node.
constexpr std::size_t per_nodo = 8;

constexpr float infinito = std::numeric_limits<float>::infinity();

float sotto(double v) { return std::nextafter(static_cast<float>(v), -infinito); }
float sopra(double v) { return std::nextafter(static_cast<float>(v), infinito); }

// ---- sorting by place

struct chiavata {
  std::uint32_t chiave;
  std::uint32_t indice;
};

// Keeps the order of equal keys.
void ordina(std::vector<chiavata>& v) {
  constexpr int cifra = 8;
  std::vector<chiavata> scorta(v.size());
  for (int spostamento = 0; spostamento < 32; spostamento += cifra) {
    std::array<std::size_t, 1U << cifra> quanti{};
    const auto cifra_di = [&](const chiavata& c) { return c.chiave >> spostamento & ((1U << cifra) - 1); };
    for (const chiavata& c : v) ++quanti[cifra_di(c)];
    if (quanti[cifra_di(v.front())] == v.size()) continue;
    std::size_t inizio = 0;
    for (std::size_t& q : quanti) inizio += std::exchange(q, inizio);
    for (const chiavata& c : v) scorta[quanti[cifra_di(c)]++] = c;
    v.swap(scorta);
  }
}

// Ordered as the floats are.
std::uint32_t chiave_di(float v) {
  const auto bit = std::bit_cast<std::uint32_t>(v);
  return (bit & 0x80000000U) != 0 ? ~bit : bit | 0x80000000U;
}

std::uint32_t chiave_centro(float a, float b) {
  const float centro = a / 2 + b / 2;
  return chiave_di(std::isnan(centro) ? 0 : centro);
}

// A large object would blow up the box that it shares with small ones: those within a factor of four go together.
std::uint8_t grandezza(const riquadro& r) {
  constexpr int maggiore = 100;
  const float lato = std::max(r.x2 - r.x1, r.y2 - r.y1);
  if (!(lato < infinito)) return 2 * maggiore;
  int esponente = 0;
  std::frexp(lato, &esponente);
  return static_cast<std::uint8_t>(esponente / 2 + maggiore);
}

template <class Chiave>
std::vector<chiavata> ordinate(std::size_t numero, const Chiave& chiave) {
  std::vector<chiavata> v(numero);
  for (std::uint32_t i = 0; i < numero; ++i) v[i] = {chiave(i), i};
  ordina(v);
  return v;
}

template <class Chiave>
void ordina_ancora(std::vector<chiavata>& v, const Chiave& chiave) {
  for (chiavata& c : v) c.chiave = chiave(c.indice);
  ordina(v);
}

// By size, and within a size from left to right.
template <class Voce>
void ordina_per_grandezza(std::vector<Voce>& voci) {
  std::vector<std::uint8_t> grandezze(voci.size());
  std::transform(voci.begin(), voci.end(), grandezze.begin(), [](const Voce& v) { return grandezza(v.r); });
  const auto centro_x = [&](std::uint32_t i) { return chiave_centro(voci[i].r.x1, voci[i].r.x2); };
  std::vector<chiavata> ordine = ordinate(voci.size(), centro_x);
  ordina_ancora(ordine, [&](std::uint32_t i) { return grandezze[i]; });
  std::vector<Voce> disposte;
  disposte.reserve(voci.size());
  for (const chiavata& c : ordine) disposte.push_back(voci[c.indice]);
  voci.swap(disposte);
}

// The upright strip of each, about as many strips of a size as each has leaves.
template <class Voce>
std::vector<std::uint32_t> strisce(const std::vector<Voce>& voci) {
  std::vector<std::uint32_t> esito(voci.size());
  std::uint32_t striscia = 0;
  for (std::size_t inizio = 0; inizio < voci.size(); ++striscia) {
    const std::uint8_t questa = grandezza(voci[inizio].r);
    std::size_t fine = inizio;
    while (fine < voci.size() && grandezza(voci[fine].r) == questa) ++fine;
    const double foglie = std::ceil(static_cast<double>(fine - inizio) / per_nodo);
    const std::size_t larghezza = per_nodo * static_cast<std::size_t>(std::ceil(std::sqrt(foglie)));
    std::size_t prima = inizio;
    for (std::size_t i = inizio; i < fine; ++i) {
      const auto centro_x = [&](std::size_t k) { return chiave_centro(voci[k].r.x1, voci[k].r.x2); };
      // Equal places are not parted.
      if (i - prima >= larghezza && centro_x(i) != centro_x(i - 1)) {
        ++striscia;
        prima = i;
      }
      esito[i] = striscia;
    }
    inizio = fine;
  }
  return esito;
}

// Puts them in strips, and in each strip in order downwards; gives that order.
template <class Voce>
std::vector<chiavata> disponi(std::vector<Voce>& voci) {
  ordina_per_grandezza(voci);
  const std::vector<std::uint32_t> di_chi = strisce(voci);
  const auto centro_y = [&](std::uint32_t i) { return chiave_centro(voci[i].r.y1, voci[i].r.y2); };
  std::vector<chiavata> ordine = ordinate(voci.size(), centro_y);
  ordina_ancora(ordine, [&](std::uint32_t i) { return di_chi[i]; });
  return ordine;
}

// Memory for little more than is asked for.
void cresci(std::vector<std::uint32_t>& v, std::size_t numero, std::uint32_t valore) {
  if (numero > v.capacity()) v.reserve(v.empty() ? numero : numero + numero / 8);
  v.resize(numero, valore);
}

// ---- levels

// Boxes for so many members below, none of them counted in yet.
std::vector<riquadro> livello_di(std::size_t sotto_questo) {
  return std::vector<riquadro>((sotto_questo + per_nodo - 1) / per_nodo, {infinito, infinito, -infinito, -infinito});
}

void allarga_nodo(std::vector<riquadro>& livello, std::size_t membro, const riquadro& r) {
  livello[membro / per_nodo].allarga(r);
}

}  // namespace

// ---- boxes

riquadro riquadro::ovunque() { return {-infinito, -infinito, infinito, infinito}; }

riquadro riquadro::intorno(double x1, double y1, double x2, double y2) {
  if (std::isnan(x1) || std::isnan(y1) || std::isnan(x2) || std::isnan(y2)) return ovunque();
  return {sotto(x1), sotto(y1), sopra(x2), sopra(y2)};
}

void riquadro::allarga(const riquadro& r) {
  x1 = std::min(x1, r.x1);
  y1 = std::min(y1, r.y1);
  x2 = std::max(x2, r.x2);
  y2 = std::max(y2, r.y2);
}

// ---- changes

const riquadro& indice::foglia_di(std::uint32_t posto) const {
  const auto dopo = std::upper_bound(alberi_.begin(), alberi_.end(), posto,
                                     [](std::uint32_t p, const albero& a) { return p < a.primo; });
  const albero& a = *std::prev(dopo);
  return a.livelli.front()[(posto - a.primo) / per_nodo];
}

void indice::togli(posizione_t posizione) {
  if (!collocata(posizione)) return;
  oggetti_[posti_[posizione]] = 0;
  posti_[posizione] = nessuno;
  --vivi_;
}

void indice::aggiorna(posizione_t posizione, const riquadro* r) {
  if (r != nullptr && collocata(posizione) && foglia_di(posti_[posizione]).contiene(*r)) return;
  togli(posizione);
  if (r != nullptr) nuovi_.push_back({*r, posizione});
}

void indice::riprendi_ultimo(const std::function<riquadro(posizione_t)>& riquadro_di) {
  const std::size_t primo = alberi_.back().primo;
  for (std::size_t posto = primo; posto < oggetti_.size(); ++posto) {
    if (oggetti_[posto] == 0) continue;
    nuovi_.push_back({riquadro_di(oggetti_[posto]), oggetti_[posto]});
    --vivi_;
  }
  oggetti_.resize(primo);
  alberi_.pop_back();
}

void indice::concludi(const std::function<riquadro(posizione_t)>& riquadro_di) {
  if (nuovi_.empty()) return;
  const auto da_riprendere = [&] {
    return !alberi_.empty() && (oggetti_.size() - alberi_.back().primo < 2 * nuovi_.size() ||
                                2 * oggetti_.size() > 3 * (vivi_ + nuovi_.size()));
  };
  while (da_riprendere()) riprendi_ultimo(riquadro_di);
  pianta();
}

void indice::pianta() {
  posizione_t ultima = 0;
  for (const voce& v : nuovi_) ultima = std::max(ultima, v.posizione);
  if (ultima >= posti_.size()) cresci(posti_, ultima + 1, nessuno);
  albero a{oggetti_.size(), {livello_di(nuovi_.size())}};
  std::vector<riquadro>& foglie = a.livelli.front();
  cresci(oggetti_, a.primo + foglie.size() * per_nodo, 0);
  std::size_t i = 0;
  for (const chiavata& c : disponi(nuovi_)) {
    const voce& v = nuovi_[c.indice];
    allarga_nodo(foglie, i, v.r);
    const std::size_t posto = a.primo + i++;
    oggetti_[posto] = v.posizione;
    posti_[v.posizione] = static_cast<std::uint32_t>(posto);
  }
  while (a.livelli.back().size() > per_nodo) {
    const std::vector<riquadro>& sotto_questo = a.livelli.back();
    std::vector<riquadro> livello = livello_di(sotto_questo.size());
    for (std::size_t k = 0; k < sotto_questo.size(); ++k) allarga_nodo(livello, k, sotto_questo[k]);
    a.livelli.push_back(std::move(livello));
  }
  vivi_ += nuovi_.size();
  alberi_.push_back(std::move(a));
  std::vector<voce>().swap(nuovi_);
}

// ---- questions

bool indice::cerca(const riquadro& zona, std::size_t massimo, std::vector<posizione_t>& trovate) const {
  // The nodes of a level that are still to be looked at, under one node of the level above.
  struct tratto {
    std::size_t livello;
    std::size_t nodo;
    std::size_t fine;
  };
  std::vector<tratto> pila;
  for (const albero& a : alberi_) {
    pila.push_back({a.livelli.size() - 1, 0, a.livelli.back().size()});
    while (!pila.empty()) {
      tratto& t = pila.back();
      const std::vector<riquadro>& nodi = a.livelli[t.livello];
      while (t.nodo < t.fine && !nodi[t.nodo].tocca(zona)) ++t.nodo;
      if (t.nodo == t.fine) {
        pila.pop_back();
        continue;
      }
      const std::size_t primo = t.nodo++ * per_nodo;
      if (t.livello > 0) {
        const std::size_t sotto_questo = t.livello - 1;
        pila.push_back({sotto_questo, primo, std::min(primo + per_nodo, a.livelli[sotto_questo].size())});
        continue;
      }
      for (std::size_t i = a.primo + primo; i < a.primo + primo + per_nodo; ++i) {
        if (oggetti_[i] != 0) trovate.push_back(oggetti_[i]);
      }
      if (trovate.size() > massimo) return false;
    }
  }
  return true;
}

std::size_t indice::memoria() const {
  std::size_t byte = oggetti_.capacity() * sizeof(posizione_t) + posti_.capacity() * sizeof(std::uint32_t);
  for (const albero& a : alberi_) {
    for (const auto& livello : a.livelli) byte += livello.capacity() * sizeof(riquadro);
  }
  return byte;
}

}  // namespace trelvo
