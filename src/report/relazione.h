// A report: rich text as one string of characters, runs of character formats, and paragraphs. Each paragraph ends in a
// mark: '\n', and one behind the last character that the string does not hold. The mark has a format too, that of what
// is typed into an empty paragraph. So a report of n characters has n + 1 places with a format.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "report/formati.h"

namespace trelvo {

class relazione {
 public:
  struct tratto {
    std::size_t lunghezza;
    formatocarattere formato;
    bool operator==(const tratto&) const = default;
  };
  // The length counts the mark.
  struct paragrafo {
    std::size_t lunghezza;
    formatoparagrafo formato;
    bool operator==(const paragrafo&) const = default;
  };

  relazione() = default;
  bool operator==(const relazione&) const = default;

  const std::u32string& testo() const { return testo_; }
  std::size_t lunghezza() const { return testo_.size(); }
  // Neighbours differ.
  const std::vector<tratto>& tratti() const { return tratti_; }
  const std::vector<paragrafo>& paragrafi() const { return paragrafi_; }

  const formatocarattere& formato(std::size_t posto) const;
  // The format of what is typed at that place: that of the character before it in its paragraph, else of the one there.
  const formatocarattere& formato_inserimento(std::size_t posto) const;
  // Each run of a range, as `azione(place, length, format)`.
  template <class Azione>
  void per_ogni_tratto(std::size_t inizio, std::size_t lunghezza, Azione&& azione) const;
  // The paragraph that holds a place.
  std::size_t indice_paragrafo(std::size_t posto) const;

  // At the end; the text is clean (`ripulito`). A paragraph begins with the format of the one before it.
  void aggiungi(std::u32string_view testo, const formatocarattere& formato);
  // The format of the last paragraph, and of its mark.
  void formato_ultimo(const formatoparagrafo& formato) { paragrafi_.back().formato = formato; }
  void formato_ultimo(const formatocarattere& formato);
  // Joins the last two paragraphs again when the last one is empty.
  void togli_ultimo_vuoto();

  // Puts a clean text in the place of `tolti` characters from `inizio` on. Paragraphs that the text makes are like the
  // one it begins in; what follows it keeps its own.
  void sostituisci(std::size_t inizio, std::size_t tolti, std::u32string_view testo, const formatocarattere& formato);
  // The same with a format a run; their lengths add up to that of the text.
  void sostituisci(std::size_t inizio, std::size_t tolti, std::u32string_view testo,
                   const std::vector<tratto>& formati);
  // At many places at once, in order and apart from each other: `lunghezza` characters of each give way, in the format
  // of the first of them. Neither they nor the text hold the end of a paragraph.
  void sostituisci(const std::vector<std::size_t>& posti, std::size_t lunghezza, std::u32string_view testo);

  // The formats of the paragraphs from one on.
  void formati_paragrafi(std::size_t primo, const std::vector<formatoparagrafo>& formati);
  // Runs `cambia` on the format of each run of a range, the last mark included if the range reaches it. Whether a
  // format became another one.
  template <class Cambio>
  bool cambia_caratteri(std::size_t inizio, std::size_t lunghezza, Cambio&& cambia);
  // The same on each paragraph that the range touches.
  template <class Cambio>
  bool cambia_paragrafi(std::size_t inizio, std::size_t lunghezza, Cambio&& cambia);

 private:
  // The run that begins at a place; what holds it is cut there.
  std::size_t taglia(std::size_t posto);
  void unisci(std::size_t primo, std::size_t ultimo);
  void sostituisci_paragrafi(std::size_t inizio, std::size_t tolti, std::u32string_view testo);
  void accorda_segno(std::size_t fine);

  std::u32string testo_;
  std::vector<tratto> tratti_{{1, {}}};
  std::vector<paragrafo> paragrafi_{{1, {}}};
};

template <class Azione>
void relazione::per_ogni_tratto(std::size_t inizio, std::size_t lunghezza, Azione&& azione) const {
  const std::size_t fine = inizio + lunghezza;
  std::size_t posto = 0;
  for (const tratto& t : tratti_) {
    const std::size_t da = std::max(posto, inizio);
    posto += t.lunghezza;
    if (posto > inizio && da < fine) azione(da, std::min(posto, fine) - da, t.formato);
    if (posto >= fine) break;
  }
}

template <class Cambio>
bool relazione::cambia_caratteri(std::size_t inizio, std::size_t lunghezza, Cambio&& cambia) {
  if (lunghezza == 0) return false;
  const std::size_t primo = taglia(inizio);
  const std::size_t oltre = taglia(inizio + lunghezza);
  bool cambiato = false;
  for (std::size_t i = primo; i < oltre; ++i) {
    formatocarattere nuovo = tratti_[i].formato;
    cambia(nuovo);
    if (nuovo == tratti_[i].formato) continue;
    tratti_[i].formato = nuovo;
    cambiato = true;
  }
  unisci(primo, oltre);
  return cambiato;
}

template <class Cambio>
bool relazione::cambia_paragrafi(std::size_t inizio, std::size_t lunghezza, Cambio&& cambia) {
  const std::size_t ultimo = indice_paragrafo(lunghezza > 0 ? inizio + lunghezza - 1 : inizio);
  bool cambiato = false;
  for (std::size_t i = indice_paragrafo(inizio); i <= ultimo; ++i) {
    formatoparagrafo nuovo = paragrafi_[i].formato;
    cambia(nuovo);
    if (nuovo == paragrafi_[i].formato) continue;
    paragrafi_[i].formato = nuovo;
    cambiato = true;
  }
  return cambiato;
}

}  // namespace trelvo
