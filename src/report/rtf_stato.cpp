#include "report/rtf_stato.h"

#include <algorithm>

#include "report/caratteri.h"

namespace trelvo {

namespace {

constexpr std::size_t nome_massimo = 1000;

// The name of a font whose number the file does not explain.
const std::string& nome_predefinito() {
  static const std::string nome = formatocarattere{}.nome;
  return nome;
}

}  // namespace

// Each name ends with a semicolon; the text may come in pieces.
void tabellertf::nome_carattere(std::u32string_view testo) {
  for (const char32_t c : testo) {
    if (c != U';') {
      if (nome_in_corso_.size() < nome_massimo) nome_in_corso_ += c;
      continue;
    }
    const std::string nome = nome_di_carattere(in_utf8(nome_in_corso_));
    if (!nome.empty()) nomi_[numero_carattere_] = nome;
    nome_in_corso_.clear();
  }
}

void tabellertf::tinta(int spostamento, int valore) {
  colore_in_corso_ &= ~(0xFF << spostamento);
  colore_in_corso_ |= std::clamp(valore, 0, 255) << spostamento;
}

void tabellertf::chiudi_colori(std::u32string_view testo) {
  for (auto chiusi = std::count(testo.begin(), testo.end(), U';'); chiusi > 0; --chiusi) {
    colori_.push_back(colore_in_corso_);
    colore_in_corso_ = 0;
  }
}

void tabellertf::elenco() {
  elenco_in_corso_ = {};
  livello_in_corso_ = 0;
}

void tabellertf::livello() { ++livello_in_corso_; }

void tabellertf::segno_livello(int numerazione) {
  constexpr int con_punto = 23;
  const std::size_t i = std::max<std::size_t>(livello_in_corso_, 1) - 1;
  if (i >= livelli_massimi) return;
  elenco_in_corso_.segni[i] = numerazione == con_punto ? segnoelenco::punto : segnoelenco::numero;
}

void tabellertf::identifica_elenco(int identita) { elenchi_[identita] = elenco_in_corso_; }

void tabellertf::numera_riferimento(int numero) { riferimenti_[numero] = identita_riferita_; }

const std::string& tabellertf::nome(int carattere) const {
  const auto trovato = nomi_.find(carattere);
  return trovato == nomi_.end() ? nome_predefinito() : trovato->second;
}

Color tabellertf::colore(int numero) const {
  const auto i = static_cast<std::size_t>(numero);
  return numero >= 0 && i < colori_.size() ? colori_[i] : 0;
}

segnoelenco tabellertf::segno(int riferimento, int livello) const {
  const auto riferito = riferimenti_.find(riferimento);
  if (riferito == riferimenti_.end()) return segnoelenco::ignoto;
  const auto trovato = elenchi_.find(riferito->second);
  if (trovato == elenchi_.end()) return segnoelenco::ignoto;
  const auto i = static_cast<std::size_t>(std::max(livello, 0));
  return i < livelli_massimi ? trovato->second.segni[i] : segnoelenco::ignoto;
}

formatocarattere tabellertf::formato(const caratterertf& c) const {
  return {nome(c.carattere), c.mezzipunti, c.grassetto,      c.corsivo,
          c.sottolineato,    c.barrato,    colore(c.colore), c.scostamento};
}

}  // namespace trelvo
