// The reading of a rich text file, mark by mark.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/relazione.h"
#include "report/rtf_riga.h"
#include "report/rtf_segni.h"
#include "report/rtf_stato.h"

namespace trelvo {

class lettorertf {
 public:
  explicit lettorertf(std::string_view dati) : segni_(dati) {}
  relazione leggi();

  // For the words.
  statortf& stato() { return stato_; }
  tabellertf& tabelle() { return tabelle_; }
  void vai_a(destinazione dove);
  void scrivi(std::u32string_view testo) { emetti(testo); }
  void fine_del_paragrafo();
  void fine_della_cella();
  void fine_della_riga();
  void unicode(int codice);
  void apri_interna();
  void predefinito(int carattere);
  void senza_formato();
  // Of what follows in the group around this one.
  void scostamento_esatto(int twip);

 private:
  bool nel_testo() const { return stato_.dove == destinazione::corpo || stato_.dove == destinazione::segno; }
  void apri();
  void chiudi();
  void chiudi_interna();
  void testo(std::string_view byte);
  void byte(int valore);
  void parola(const segnortf& segno);
  void simbolo(char c);
  void codifica(char32_t c);
  void emetti(std::u32string_view testo);

  segnirtf segni_;
  tabellertf tabelle_;
  statortf stato_;
  std::vector<statortf> sopra_;
  std::size_t oltre_ = 0;  // groups opened beyond the depth that is kept
  rigartf riga_;
  relazione letta_;
  std::u32string in_sospeso_;  // written in front of the text that comes next, if any
  bool finita_ = false;
  std::size_t da_saltare_ = 0;
  char32_t prima_meta_ = 0;  // of a pair
  bool ignorabile_ = false;  // the group began with "\*"
  int carattere_predefinito_ = 0;
};

struct parolartf {
  void (*esegui)(lettorertf&, const segnortf&);
  bool anche_ignorabile;  // known behind "\*" too
};
// nullptr for a word that says nothing here.
const parolartf* parola_rtf(std::string_view nome);

}  // namespace trelvo
