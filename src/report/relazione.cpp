#include "report/relazione.h"

#include <algorithm>

#include "report/caratteri.h"

namespace trelvo {

namespace {

// The element that holds a place, and where it begins; behind the end, the last one.
template <class Elementi>
std::size_t contenente(const Elementi& elementi, std::size_t posto, std::size_t& inizio) {
  inizio = 0;
  std::size_t i = 0;
  while (i + 1 < elementi.size() && inizio + elementi[i].lunghezza <= posto) inizio += elementi[i++].lunghezza;
  return i;
}

}  // namespace

const formatocarattere& relazione::formato(std::size_t posto) const {
  std::size_t inizio = 0;
  return tratti_[contenente(tratti_, posto, inizio)].formato;
}

const formatocarattere& relazione::formato_inserimento(std::size_t posto) const {
  const bool prosegue = posto > 0 && testo_[posto - 1] != fine_paragrafo;
  return formato(prosegue ? posto - 1 : posto);
}

std::size_t relazione::indice_paragrafo(std::size_t posto) const {
  std::size_t inizio = 0;
  return contenente(paragrafi_, posto, inizio);
}

void relazione::aggiungi(std::u32string_view testo, const formatocarattere& formato) {
  if (testo.empty()) return;
  testo_ += testo;
  // The last run is the mark's: it goes behind the new text.
  const formatocarattere segno = tratti_.back().formato;
  if (--tratti_.back().lunghezza == 0) tratti_.pop_back();
  if (!tratti_.empty() && tratti_.back().formato == formato) {
    tratti_.back().lunghezza += testo.size();
  } else {
    tratti_.push_back({testo.size(), formato});
  }
  if (segno == formato) {
    ++tratti_.back().lunghezza;
  } else {
    tratti_.push_back({1, segno});
  }
  for (;;) {
    const std::size_t fine = testo.find(fine_paragrafo);
    if (fine == std::u32string_view::npos) break;
    paragrafi_.back().lunghezza += fine;
    paragrafi_.push_back({1, paragrafi_.back().formato});
    testo.remove_prefix(fine + 1);
  }
  paragrafi_.back().lunghezza += testo.size();
}

void relazione::formato_ultimo(const formatocarattere& formato) {
  cambia_caratteri(testo_.size(), 1, [&](formatocarattere& f) { f = formato; });
}

void relazione::togli_ultimo_vuoto() {
  if (testo_.empty() || testo_.back() != fine_paragrafo) return;
  // The former mark takes the place of the last one.
  testo_.pop_back();
  if (--tratti_.back().lunghezza == 0) tratti_.pop_back();
  paragrafi_.pop_back();
}

void relazione::sostituisci(std::size_t inizio, std::size_t tolti, std::u32string_view testo,
                            const formatocarattere& formato) {
  sostituisci(inizio, tolti, testo, std::vector<tratto>{{testo.size(), formato}});
}

void relazione::sostituisci(std::size_t inizio, std::size_t tolti, std::u32string_view testo,
                            const std::vector<tratto>& formati) {
  sostituisci_paragrafi(inizio, tolti, testo);
  const std::size_t primo = taglia(inizio);
  const std::size_t oltre = taglia(inizio + tolti);
  tratti_.erase(tratti_.begin() + static_cast<std::ptrdiff_t>(primo),
                tratti_.begin() + static_cast<std::ptrdiff_t>(oltre));
  std::size_t messi = 0;
  if (!testo.empty()) {
    tratti_.insert(tratti_.begin() + static_cast<std::ptrdiff_t>(primo), formati.begin(), formati.end());
    messi = formati.size();
  }
  unisci(primo, primo + messi);
  testo_.replace(inizio, tolti, testo);
  if (!testo.empty() && testo.back() == fine_paragrafo) accorda_segno(inizio + testo.size());
}

void relazione::sostituisci(const std::vector<std::size_t>& posti, std::size_t lunghezza, std::u32string_view testo) {
  relazione nuova;
  std::size_t letto = 0;
  auto di_cui = tratti_.begin();
  std::size_t fine_tratto = di_cui->lunghezza;
  const auto formato_letto = [&]() -> const formatocarattere& {
    while (fine_tratto <= letto) fine_tratto += (++di_cui)->lunghezza;
    return di_cui->formato;
  };
  const auto copia = [&](std::size_t fino) {
    while (letto < fino) {
      const formatocarattere& come = formato_letto();
      const std::size_t oltre = std::min(fino, fine_tratto);
      nuova.aggiungi(std::u32string_view(testo_).substr(letto, oltre - letto), come);
      letto = oltre;
    }
  };
  for (const std::size_t posto : posti) {
    copia(posto);
    nuova.aggiungi(testo, formato_letto());
    letto += lunghezza;
  }
  copia(testo_.size());
  nuova.formato_ultimo(tratti_.back().formato);
  for (std::size_t i = 0; i < paragrafi_.size(); ++i) nuova.paragrafi_[i].formato = paragrafi_[i].formato;
  *this = std::move(nuova);
}

void relazione::formati_paragrafi(std::size_t primo, const std::vector<formatoparagrafo>& formati) {
  const std::size_t quanti = std::min(formati.size(), paragrafi_.size() - primo);
  for (std::size_t i = 0; i < quanti; ++i) paragrafi_[primo + i].formato = formati[i];
}

// A paragraph that was opened empty goes on in the format of what was typed before it.
void relazione::accorda_segno(std::size_t fine) {
  if (fine < testo_.size() && testo_[fine] != fine_paragrafo) return;
  const formatocarattere come = formato(fine - 1);
  cambia_caratteri(fine, 1, [&](formatocarattere& f) { f = come; });
}

std::size_t relazione::taglia(std::size_t posto) {
  if (posto > testo_.size()) return tratti_.size();
  std::size_t inizio = 0;
  const std::size_t i = contenente(tratti_, posto, inizio);
  if (inizio == posto) return i;
  const std::size_t prima = posto - inizio;
  tratto resto{tratti_[i].lunghezza - prima, tratti_[i].formato};
  tratti_[i].lunghezza = prima;
  tratti_.insert(tratti_.begin() + static_cast<std::ptrdiff_t>(i) + 1, std::move(resto));
  return i + 1;
}

// Joins equal neighbours from the run before `primo` to run `ultimo`.
void relazione::unisci(std::size_t primo, std::size_t ultimo) {
  std::size_t scritto = primo > 0 ? primo - 1 : 0;
  std::size_t letto = scritto + 1;
  const std::size_t oltre = std::min(ultimo + 1, tratti_.size());
  for (; letto < oltre; ++letto) {
    if (tratti_[letto].formato == tratti_[scritto].formato) {
      tratti_[scritto].lunghezza += tratti_[letto].lunghezza;
    } else if (++scritto != letto) {
      tratti_[scritto] = std::move(tratti_[letto]);
    }
  }
  if (++scritto < letto) {
    tratti_.erase(tratti_.begin() + static_cast<std::ptrdiff_t>(scritto),
                  tratti_.begin() + static_cast<std::ptrdiff_t>(letto));
  }
}

void relazione::sostituisci_paragrafi(std::size_t inizio, std::size_t tolti, std::u32string_view testo) {
  std::size_t inizio_primo = 0;
  std::size_t inizio_ultimo = 0;
  const std::size_t primo = contenente(paragrafi_, inizio, inizio_primo);
  const std::size_t ultimo = contenente(paragrafi_, inizio + tolti, inizio_ultimo);
  const std::size_t coda = inizio_ultimo + paragrafi_[ultimo].lunghezza - (inizio + tolti);
  const formatoparagrafo seguente = paragrafi_[ultimo].formato;

  std::vector<paragrafo> nuovi{{inizio - inizio_primo, paragrafi_[primo].formato}};
  for (;;) {
    const std::size_t fine = testo.find(fine_paragrafo);
    if (fine == std::u32string_view::npos) break;
    nuovi.back().lunghezza += fine + 1;
    nuovi.push_back({0, nuovi.back().formato});
    testo.remove_prefix(fine + 1);
  }
  nuovi.back().lunghezza += testo.size() + coda;
  if (nuovi.size() > 1) nuovi.back().formato = seguente;

  const auto da = paragrafi_.begin() + static_cast<std::ptrdiff_t>(primo);
  const auto a = paragrafi_.begin() + static_cast<std::ptrdiff_t>(ultimo) + 1;
  paragrafi_.insert(paragrafi_.erase(da, a), nuovi.begin(), nuovi.end());
}

}  // namespace trelvo
