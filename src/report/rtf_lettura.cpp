#include "report/rtf_lettura.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"
#include "report/caratteri.h"
#include "report/rtf_lettore.h"

namespace trelvo {

namespace {

// Deeper groups are read in the state of this one.
constexpr std::size_t profondita_massima = 1000;

}  // namespace

bool e_rtf(std::string_view dati) {
  if (dati.starts_with("\xEF\xBB\xBF")) dati.remove_prefix(3);
  dati.remove_prefix(std::min(dati.find_first_not_of(" \t\r\n"), dati.size()));
  return dati.starts_with("{\\rtf");
}

relazione leggi_rtf(std::string_view dati) {
  dati.remove_prefix(std::min(dati.find('{'), dati.size()));
  return lettorertf(dati).leggi();
}

// What stands behind the group that is the file does not belong to it.
relazione lettorertf::leggi() {
  using tipo = segnortf::tipo;
  for (segnortf segno = segni_.prossimo(); segno.quale != tipo::fine && !finita_; segno = segni_.prossimo()) {
    switch (segno.quale) {
      case tipo::apre:
        apri();
        break;
      case tipo::chiude:
        chiudi();
        break;
      case tipo::testo:
        testo(segno.testo);
        break;
      case tipo::byte:
        byte(segno.numero);
        break;
      case tipo::parola:
        parola(segno);
        break;
      case tipo::simbolo:
        simbolo(segno.testo.front());
        break;
      case tipo::fine:
        break;
    }
  }
  if (riga_.vuota()) {
    letta_.togli_ultimo_vuoto();
  } else {
    riga_.chiudi_ultima(letta_, tabelle_);
  }
  return std::move(letta_);
}

void lettorertf::apri() {
  ignorabile_ = false;
  da_saltare_ = 0;
  if (sopra_.size() == profondita_massima) {
    ++oltre_;
    return;
  }
  sopra_.push_back(stato_);
  stato_.apre_interna = false;
}

void lettorertf::chiudi() {
  ignorabile_ = false;
  da_saltare_ = 0;
  prima_meta_ = 0;
  if (oltre_ > 0) {
    --oltre_;
    return;
  }
  if (sopra_.empty()) return;
  if (stato_.apre_interna) chiudi_interna();
  const statortf chiuso = stato_;
  stato_ = sopra_.back();
  sopra_.pop_back();
  finita_ = sopra_.empty();
  // A numbering is that of the paragraph around it.
  if (chiuso.dove == destinazione::numerazione) stato_.paragrafo.elenco = chiuso.paragrafo.elenco;
  if (chiuso.dove == destinazione::segno && stato_.dove != destinazione::segno && !riga_.vuota()) {
    riga_.chiudi_segno(false);
  }
}

void lettorertf::testo(std::string_view byte) {
  ignorabile_ = false;
  const std::size_t saltati = std::min(da_saltare_, byte.size());
  da_saltare_ -= saltati;
  byte.remove_prefix(saltati);
  if (!byte.empty()) emetti(ripulito(da_utf8(from_code_page(byte))));
}

void lettorertf::byte(int valore) {
  if (da_saltare_ > 0) {
    --da_saltare_;
    return;
  }
  constexpr int primo_segno = 0x20;
  const auto byte = static_cast<char>(valore);
  if (valore >= primo_segno || byte == '\t') emetti(ripulito(da_utf8(from_code_page(std::string_view(&byte, 1)))));
}

void lettorertf::parola(const segnortf& segno) {
  if (da_saltare_ > 0) {
    --da_saltare_;
    return;
  }
  const parolartf* nota = parola_rtf(segno.testo);
  if (ignorabile_) {
    ignorabile_ = false;
    if (nota == nullptr || !nota->anche_ignorabile) {
      vai_a(destinazione::ignorata);
      return;
    }
  }
  if (nota != nullptr) nota->esegui(*this, segno);
}

void lettorertf::simbolo(char c) {
  if (c == '*') {
    ignorabile_ = true;
    return;
  }
  if (da_saltare_ > 0) {
    --da_saltare_;
    return;
  }
  switch (c) {
    case '\\':
    case '{':
    case '}':
      codifica(static_cast<unsigned char>(c));
      break;
    case '~':
      codifica(0xA0);
      break;
    case '_':
      codifica(0x2011);
      break;
    case '-':
      codifica(0xAD);
      break;
    case '\t':
      codifica(U'\t');
      break;
    case '\r':
    case '\n':
      fine_del_paragrafo();
      break;
    default:
      break;
  }
}

void lettorertf::codifica(char32_t c) { emetti(std::u32string_view(&c, 1)); }

void lettorertf::emetti(std::u32string_view testo) {
  switch (stato_.dove) {
    case destinazione::corpo:
    case destinazione::segno:
      if (!in_sospeso_.empty() && !testo.empty()) emetti(std::exchange(in_sospeso_, {}));
      riga_.aggiungi(testo, stato_.carattere, stato_.paragrafo);
      break;
    case destinazione::caratteri:
      tabelle_.nome_carattere(testo);
      break;
    case destinazione::colori:
      tabelle_.chiudi_colori(testo);
      break;
    default:
      break;
  }
}

// Nothing leads out of an ignored group, and only a text out of a drawn object.
void lettorertf::vai_a(destinazione dove) {
  const bool chiusa =
      stato_.dove == destinazione::ignorata || (stato_.dove == destinazione::disegno && dove != destinazione::corpo);
  if (dove != destinazione::ignorata && chiusa) return;
  stato_.dove = dove;
}

// Some writers leave the sign of a list open around its whole paragraph.
void lettorertf::fine_del_paragrafo() {
  if (!nel_testo()) return;
  if (stato_.interna) {
    in_sospeso_ += a_capo;
    return;
  }
  if (stato_.dove == destinazione::segno) {
    riga_.chiudi_segno(true);
    stato_.dove = destinazione::corpo;
  }
  riga_.chiudi(letta_, tabelle_, stato_.paragrafo, stato_.carattere);
}

void lettorertf::fine_della_cella() {
  if (nel_testo()) riga_.chiudi_cella(stato_);
}

void lettorertf::fine_della_riga() {
  if (!nel_testo()) return;
  riga_.togli_ultima_cella();
  fine_del_paragrafo();
}

void lettorertf::unicode(int codice) {
  const auto unita = static_cast<char32_t>(codice & 0xFFFF);
  const bool alta = unita >= 0xD800 && unita < 0xDC00;
  const bool bassa = unita >= 0xDC00 && unita < 0xE000;
  if (alta) {
    prima_meta_ = unita;
  } else if (bassa && prima_meta_ != 0) {
    codifica(0x10000 + ((prima_meta_ - 0xD800) << 10) + (unita - 0xDC00));
    prima_meta_ = 0;
  } else {
    prima_meta_ = 0;
    emetti(ripulito(std::u32string_view(&unita, 1)));
  }
  da_saltare_ = static_cast<std::size_t>(stato_.sostituti);
}

// A text of its own within a paragraph: its paragraphs are lines there.
void lettorertf::apri_interna() {
  if (!nel_testo()) return;
  in_sospeso_ = U"[";
  stato_.interna = true;
  stato_.apre_interna = true;
}

void lettorertf::chiudi_interna() {
  const bool vuota = in_sospeso_.starts_with(U'[');
  in_sospeso_.clear();
  if (!vuota) emetti(U"]");
}

void lettorertf::predefinito(int carattere) {
  carattere_predefinito_ = carattere;
  stato_.carattere.carattere = carattere;
}

void lettorertf::senza_formato() {
  stato_.carattere = {};
  stato_.carattere.carattere = carattere_predefinito_;
}

void lettorertf::scostamento_esatto(int twip) {
  if (nel_testo() && oltre_ == 0 && !sopra_.empty()) sopra_.back().carattere.scostamento = twip;
  vai_a(destinazione::ignorata);
}

}  // namespace trelvo
