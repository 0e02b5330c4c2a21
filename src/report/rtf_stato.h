// What a rich text file has said so far: the state of a group, and the tables that its numbers refer to.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "report/formati.h"

namespace trelvo {

// Where the text of a group goes.
enum class destinazione {
  corpo,
  segno,        // the visible sign of a list in front of a paragraph
  numerazione,  // how a paragraph is numbered, in the old way
  caratteri,    // the table of fonts
  colori,       // the table of colours
  elenchi,      // the table of lists
  riferimenti,  // the table that paragraphs refer to lists by
  disegno,      // a drawn object, of which only the text counts
  ignorata,
};

// Characters as a file describes them: fonts and colours by their numbers.
struct caratterertf {
  int carattere = 0;
  int colore = 0;
  int mezzipunti = 24;
  bool grassetto = false;
  bool corsivo = false;
  bool sottolineato = false;
  bool barrato = false;
  int scostamento = 0;
  bool operator==(const caratterertf&) const = default;
};

enum class segnoelenco { ignoto, punto, numero };

struct paragrafortf {
  formatoparagrafo formato;
  segnoelenco elenco = segnoelenco::ignoto;  // as said with the paragraph itself
  int riferimento = 0;                       // to the table of lists, 0 for none
  int livello = 0;
};

struct statortf {
  destinazione dove = destinazione::corpo;
  caratterertf carattere;
  paragrafortf paragrafo;
  int sostituti = 1;          // characters that stand for one of Unicode
  bool interna = false;       // in a text within a paragraph: a note, a text box
  bool apre_interna = false;  // the group is that text
};

class tabellertf {
 public:
  // Definitions, in the order of the file.
  void carattere(int numero) { numero_carattere_ = numero; }
  void nome_carattere(std::u32string_view testo);
  void tinta(int spostamento, int valore);
  void chiudi_colori(std::u32string_view testo);
  void elenco();
  void livello();
  void segno_livello(int numerazione);
  void identifica_elenco(int identita);
  void riferimento() { identita_riferita_ = 0; }
  void riferisci(int identita) { identita_riferita_ = identita; }
  void numera_riferimento(int numero);

  // Answers.
  const std::string& nome(int carattere) const;
  Color colore(int numero) const;
  segnoelenco segno(int riferimento, int livello) const;
  formatocarattere formato(const caratterertf& carattere) const;

 private:
  static constexpr std::size_t livelli_massimi = 9;
  struct elencortf {
    std::array<segnoelenco, livelli_massimi> segni{};
  };
  std::map<int, std::string> nomi_;
  int numero_carattere_ = 0;
  std::u32string nome_in_corso_;
  std::vector<Color> colori_;
  Color colore_in_corso_ = 0;
  std::map<int, elencortf> elenchi_;
  elencortf elenco_in_corso_;
  std::size_t livello_in_corso_ = 0;
  std::map<int, int> riferimenti_;
  int identita_riferita_ = 0;
};

}  // namespace trelvo
