// The paragraph of a rich text file that is being read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/relazione.h"
#include "report/rtf_stato.h"

namespace trelvo {

class rigartf {
 public:
  void aggiungi(std::u32string_view testo, const caratterertf& carattere, const paragrafortf& paragrafo);
  // A cell of a table ends in a tab, its row in the end of the paragraph.
  void chiudi_cella(const statortf& stato);
  void togli_ultima_cella();
  // What was added so far is the sign of a list; with `fino_al_tabulatore` only its part up to the first tab.
  void chiudi_segno(bool fino_al_tabulatore);
  bool vuota() const { return testo_.empty(); }

  // Appends the paragraph with its mark, which has that format, and begins the next one.
  void chiudi(relazione& dove, const tabellertf& tabelle, const paragrafortf& paragrafo, const caratterertf& segno);
  // The last one, which no mark ends: with the paragraph format that its text was read in.
  void chiudi_ultima(relazione& dove, const tabellertf& tabelle);

 private:
  struct trattortf {
    std::size_t lunghezza;
    caratterertf carattere;
  };
  formatoparagrafo formato(const tabellertf& tabelle, const paragrafortf& paragrafo) const;
  bool segno_puntato() const;
  void versa(relazione& dove, const tabellertf& tabelle, bool con_segno) const;

  std::u32string testo_;
  std::vector<trattortf> tratti_;
  std::size_t segno_ = 0;  // length of the list's sign in front
  bool con_segno_ = false;
  bool in_cella_ = false;
  paragrafortf ultimo_;
};

}  // namespace trelvo
