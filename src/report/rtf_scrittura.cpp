#include "report/rtf_scrittura.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

#include "platform/text.h"
#include "report/caratteri.h"

namespace trelvo {

namespace {

constexpr int twip_a_mezzopunto = 10;

// Values by the number that a file refers to them by, in the order of their first use.
template <class Valore>
class tavola {
 public:
  explicit tavola(int primo) : primo_(primo) {}
  int numero(const Valore& valore) {
    const auto [posto, nuovo] = numeri_.try_emplace(valore, primo_ + static_cast<int>(valori_.size()));
    if (nuovo) valori_.push_back(valore);
    return posto->second;
  }
  const std::vector<Valore>& valori() const { return valori_; }

 private:
  int primo_;
  std::map<Valore, int> numeri_;
  std::vector<Valore> valori_;
};

// Left indent and that of the first line.
using rientri = std::pair<int, int>;

class scrittorertf {
 public:
  explicit scrittorertf(const relazione& testo) : testo_(testo) {}
  std::string scrivi();

 private:
  void corpo();
  void inizia_paragrafo(const formatoparagrafo& formato);
  void carattere(const formatocarattere& formato);
  void testo(std::u32string_view testo);
  void segno(char32_t c);
  void parola(const char* nome, int numero);
  void scostamento(int twip);

  std::string intestazione() const;
  std::string tavola_caratteri() const;
  std::string tavola_colori() const;
  std::string tavola_elenchi() const;

  const relazione& testo_;
  std::string corpo_;
  tavola<std::string> caratteri_{0};
  tavola<Color> colori_{1};  // 0 is the reader's own black
  tavola<rientri> elenchi_{1};
};

void aggiungi_esadecimale(std::string& testo, unsigned char byte) {
  constexpr const char* cifre = "0123456789abcdef";
  testo += "\\'";
  testo += cifre[byte >> 4];
  testo += cifre[byte & 0xF];
}

void aggiungi_unicode(std::string& testo, char32_t unita) {
  testo += "\\u" + std::to_string(static_cast<std::int16_t>(unita)) + "?";
}

void aggiungi_segno(std::string& testo, char32_t c) {
  switch (c) {
    case U'\\':
    case U'{':
    case U'}':
      testo += '\\';
      testo += static_cast<char>(c);
      return;
    case U'\t':
      testo += "\\tab ";
      return;
    case a_capo:
      testo += "\\line ";
      return;
    case 0xA0:
      testo += "\\~";
      return;
    default:
      break;
  }
  if (c < 0x80) {
    testo += static_cast<char>(c);
    return;
  }
  const std::string byte = to_code_page(in_utf8(std::u32string_view(&c, 1)));
  if (byte != "?") {
    aggiungi_esadecimale(testo, static_cast<unsigned char>(byte.front()));
  } else if (c < 0x10000) {
    aggiungi_unicode(testo, c);
  } else {
    aggiungi_unicode(testo, 0xD800 + ((c - 0x10000) >> 10));
    aggiungi_unicode(testo, 0xDC00 + ((c - 0x10000) & 0x3FF));
  }
}

void scrittorertf::parola(const char* nome, int numero) { corpo_ += nome + std::to_string(numero); }

void scrittorertf::carattere(const formatocarattere& formato) {
  corpo_ += '{';
  if (formato.scostamento != 0) scostamento(formato.scostamento);
  parola("\\f", caratteri_.numero(formato.nome));
  parola("\\fs", formato.mezzipunti);
  if (formato.grassetto) corpo_ += "\\b";
  if (formato.corsivo) corpo_ += "\\i";
  if (formato.sottolineato) corpo_ += "\\ul";
  if (formato.barrato) corpo_ += "\\strike";
  if (formato.colore != 0) parola("\\cf", colori_.numero(formato.colore));
  corpo_ += ' ';
}

void scrittorertf::scostamento(int twip) {
  const auto mezzipunti = static_cast<int>(std::lround(static_cast<double>(std::abs(twip)) / twip_a_mezzopunto));
  parola(twip > 0 ? "\\up" : "\\dn", mezzipunti);
  if (twip % twip_a_mezzopunto == 0) return;
  parola("{\\*\\trelvoscost", twip);
  corpo_ += '}';
}

void scrittorertf::inizia_paragrafo(const formatoparagrafo& formato) {
  constexpr std::array<const char*, 4> parole{"\\ql", "\\qr", "\\qc", "\\qj"};
  if (formato.puntato) corpo_ += "{\\pntext\\'95\\tab}";
  corpo_ += "\\pard\\plain";
  corpo_ += parole[static_cast<std::size_t>(formato.allinea)];
  if (formato.puntato) {
    parola("{\\*\\pn\\pnlvlblt\\pnindent", std::abs(formato.primariga));
    parola("{\\pntxtb\\'95}}\\ilvl0\\ls", elenchi_.numero({formato.sinistro, formato.primariga}));
  }
  if (formato.puntato || formato.primariga != 0) parola("\\fi", formato.primariga);
  if (formato.puntato || formato.sinistro != 0) parola("\\li", formato.sinistro);
  if (formato.destro != 0) parola("\\ri", formato.destro);
}

// The text of one paragraph, without its mark.
void scrittorertf::testo(std::u32string_view testo) {
  for (const char32_t c : testo) aggiungi_segno(corpo_, c);
}

// A group a run, since some readers lose a format that only the next one ends. The mark is written in its own format.
void scrittorertf::corpo() {
  std::size_t posto = 0;
  std::size_t fine_tratto = 0;
  auto tratto = testo_.tratti().begin();
  for (const relazione::paragrafo& paragrafo : testo_.paragrafi()) {
    inizia_paragrafo(paragrafo.formato);
    for (const std::size_t segno = posto + paragrafo.lunghezza - 1; posto <= segno;) {
      if (posto == fine_tratto) fine_tratto += tratto++->lunghezza;
      carattere(std::prev(tratto)->formato);
      const std::size_t oltre = std::min(segno, fine_tratto);
      testo(std::u32string_view(testo_.testo()).substr(posto, oltre - posto));
      posto = oltre;
      if (posto == segno && posto < fine_tratto) {
        corpo_ += "\\par";
        ++posto;
      }
      corpo_ += '}';
    }
    corpo_ += '\n';
  }
}

std::string scrittorertf::tavola_caratteri() const {
  std::string testo = "{\\fonttbl";
  int numero = 0;
  for (const std::string& nome : caratteri_.valori()) {
    const bool simboli = nome == "Symbol" || nome == "Webdings" || nome.starts_with("Wingdings");
    testo += "{\\f" + std::to_string(numero++) + "\\fnil\\fcharset" + (simboli ? "2 " : "0 ");
    // A name ends with a semicolon: there is none within it.
    for (const char32_t c : da_utf8(nome)) aggiungi_segno(testo, c == U';' ? U' ' : c);
    testo += ";}";
  }
  return testo + "}\n";
}

std::string scrittorertf::tavola_colori() const {
  std::string testo = "{\\colortbl ;";
  for (const Color colore : colori_.valori()) {
    testo += "\\red" + std::to_string(colore & 0xFF) + "\\green" + std::to_string(colore >> 8 & 0xFF) + "\\blue" +
             std::to_string(colore >> 16 & 0xFF) + ";";
  }
  return testo + "}\n";
}

// A list for each pair of indents: some readers take them from there and not from the paragraph.
std::string scrittorertf::tavola_elenchi() const {
  if (elenchi_.valori().empty()) return {};
  std::ostringstream elenchi;
  std::ostringstream riferimenti;
  int numero = 0;
  for (const auto& [sinistro, primariga] : elenchi_.valori()) {
    ++numero;
    elenchi << "{\\list\\listtemplateid" << numero << "\\listsimple1{\\listlevel\\levelnfc23\\leveljc0\\levelstartat1"
            << "\\levelfollow0{\\leveltext\\'01\\u8226 ?;}{\\levelnumbers;}\\fi" << primariga << "\\li" << sinistro
            << "}\\listid" << numero << "}";
    riferimenti << "{\\listoverride\\listid" << numero << "\\listoverridecount0\\ls" << numero << "}";
  }
  return "{\\*\\listtable" + elenchi.str() + "}\n{\\*\\listoverridetable" + riferimenti.str() + "}\n";
}

std::string scrittorertf::intestazione() const {
  return "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0" + tavola_caratteri() + tavola_colori() + tavola_elenchi() +
         "{\\*\\generator Trelvo;}\\viewkind4\n";
}

std::string scrittorertf::scrivi() {
  corpo();
  return intestazione() + corpo_ + "}\n";
}

}  // namespace

std::string scrivi_rtf(const relazione& testo) { return scrittorertf(testo).scrivi(); }

}  // namespace trelvo
