// The bytes of a rich text file as a row of marks.
#pragma once

#include <cstddef>
#include <string_view>

namespace trelvo {

struct segnortf {
  enum class tipo { fine, apre, chiude, testo, byte, parola, simbolo };
  tipo quale = tipo::fine;
  std::string_view testo;  // plain bytes, the letters of a word, or the one character of a symbol
  bool con_numero = false;
  int numero = 0;  // of a word; held at the ends of its type. Of a byte, its value
};

class segnirtf {
 public:
  explicit segnirtf(std::string_view dati) : resto_(dati) {}

  // The binary data of a word "bin" are passed over with it.
  segnortf prossimo();

 private:
  segnortf comando();
  segnortf parola();
  segnortf byte_scritto();
  void numero_di(segnortf& parola);

  std::string_view resto_;
};

}  // namespace trelvo
