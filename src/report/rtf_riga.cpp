#include "report/rtf_riga.h"

#include <algorithm>

#include "report/caratteri.h"

namespace trelvo {

void rigartf::aggiungi(std::u32string_view testo, const caratterertf& carattere, const paragrafortf& paragrafo) {
  if (testo.empty()) return;
  in_cella_ = false;
  ultimo_ = paragrafo;
  testo_ += testo;
  if (!tratti_.empty() && tratti_.back().carattere == carattere) {
    tratti_.back().lunghezza += testo.size();
  } else {
    tratti_.push_back({testo.size(), carattere});
  }
}

void rigartf::chiudi_cella(const statortf& stato) {
  aggiungi(U"\t", stato.carattere, stato.paragrafo);
  in_cella_ = true;
}

void rigartf::togli_ultima_cella() {
  if (!in_cella_) return;
  in_cella_ = false;
  testo_.pop_back();
  if (--tratti_.back().lunghezza == 0) tratti_.pop_back();
}

void rigartf::chiudi_segno(bool fino_al_tabulatore) {
  con_segno_ = true;
  const std::size_t tabulatore = testo_.find(U'\t');
  if (!fino_al_tabulatore) {
    segno_ = testo_.size();
  } else if (tabulatore != std::u32string::npos) {
    segno_ = tabulatore + 1;
  }
}

// One character that is neither letter nor digit, a hollow one drawn as "o", or none that was written.
bool rigartf::segno_puntato() const {
  const auto bianco = [](char32_t c) { return c == U' ' || c == U'\t' || c == 0xA0; };
  std::u32string segno;
  std::copy_if(testo_.begin(), testo_.begin() + static_cast<std::ptrdiff_t>(segno_), std::back_inserter(segno),
               [&](char32_t c) { return !bianco(c); });
  if (segno.empty()) return true;
  if (segno.size() > 1) return false;
  const char32_t c = segno.front();
  const bool lettera = (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
  return !lettera || c == U'o';
}

formatoparagrafo rigartf::formato(const tabellertf& tabelle, const paragrafortf& paragrafo) const {
  segnoelenco segno = paragrafo.elenco;
  if (segno == segnoelenco::ignoto) segno = tabelle.segno(paragrafo.riferimento, paragrafo.livello);
  if (segno == segnoelenco::ignoto && con_segno_ && segno_puntato()) segno = segnoelenco::punto;
  formatoparagrafo risultato = paragrafo.formato;
  risultato.puntato = segno == segnoelenco::punto;
  return risultato;
}

void rigartf::versa(relazione& dove, const tabellertf& tabelle, bool con_segno) const {
  std::size_t inizio = 0;
  std::size_t saltati = con_segno ? 0 : segno_;
  for (const trattortf& tratto : tratti_) {
    const std::size_t salta = std::min(saltati, tratto.lunghezza);
    const auto testo = std::u32string_view(testo_).substr(inizio + salta, tratto.lunghezza - salta);
    dove.aggiungi(testo, tabelle.formato(tratto.carattere));
    saltati -= salta;
    inizio += tratto.lunghezza;
  }
}

void rigartf::chiudi(relazione& dove, const tabellertf& tabelle, const paragrafortf& paragrafo,
                     const caratterertf& segno) {
  const formatoparagrafo come = formato(tabelle, paragrafo);
  versa(dove, tabelle, !come.puntato);
  dove.formato_ultimo(come);
  dove.aggiungi(std::u32string_view(&fine_paragrafo, 1), tabelle.formato(segno));
  *this = rigartf();
}

void rigartf::chiudi_ultima(relazione& dove, const tabellertf& tabelle) {
  const formatoparagrafo come = formato(tabelle, ultimo_);
  versa(dove, tabelle, !come.puntato);
  dove.formato_ultimo(come);
  dove.formato_ultimo(tabelle.formato(tratti_.back().carattere));
}

}  // namespace trelvo
