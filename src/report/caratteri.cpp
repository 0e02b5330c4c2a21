#include "report/caratteri.h"

#include <algorithm>

namespace trelvo {

namespace {

constexpr char32_t codice_massimo = 0x10FFFF;

bool seguito(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

bool mezza_coppia(char32_t c) { return c >= 0xD800 && c < 0xE000; }

// Takes a character off the front; false, and a byte taken, if there is none.
bool prendi(std::string_view& testo, char32_t& c) {
  const auto primo = static_cast<unsigned char>(testo.front());
  std::size_t lungo = 1;
  char32_t minimo = 0;
  c = primo;
  if (primo >= 0xF0 && primo < 0xF8) {
    lungo = 4, minimo = 0x10000, c = primo & 0x07U;
  } else if (primo >= 0xE0 && primo < 0xF0) {
    lungo = 3, minimo = 0x800, c = primo & 0x0FU;
  } else if (primo >= 0xC0 && primo < 0xE0) {
    lungo = 2, minimo = 0x80, c = primo & 0x1FU;
  }
  bool buono = (primo < 0x80 || lungo > 1) && lungo <= testo.size();
  for (std::size_t i = 1; buono && i < lungo; ++i) {
    buono = seguito(testo[i]);
    c = c << 6 | (static_cast<unsigned char>(testo[i]) & 0x3FU);
  }
  buono = buono && c >= minimo && c <= codice_massimo && !mezza_coppia(c);
  testo.remove_prefix(buono ? lungo : 1);
  return buono;
}

void aggiungi(std::string& testo, char32_t c) {
  if (c < 0x80) {
    testo += static_cast<char>(c);
    return;
  }
  if (c < 0x800) {
    testo += static_cast<char>(0xC0U | c >> 6);
  } else {
    if (c < 0x10000) {
      testo += static_cast<char>(0xE0U | c >> 12);
    } else {
      testo += static_cast<char>(0xF0U | c >> 18);
      testo += static_cast<char>(0x80U | (c >> 12 & 0x3FU));
    }
    testo += static_cast<char>(0x80U | (c >> 6 & 0x3FU));
  }
  testo += static_cast<char>(0x80U | (c & 0x3FU));
}

char32_t ammesso(char32_t c) {
  switch (c) {
    case U'\t':
      return c;
    case U'\r':
    case U'\n':
    case U'\f':
    case 0x2029:
      return fine_paragrafo;
    case U'\v':
      return a_capo;
    case 0xFFFC:  // a picture in the text of some toolkits
      return carattere_ignoto;
    default:
      break;
  }
  const bool senza_segno = (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFEU) == 0xFFFE;
  const bool rifiutato = c < 0x20 || c == 0x7F || mezza_coppia(c) || senza_segno || c > codice_massimo;
  return rifiutato ? carattere_ignoto : c;
}

}  // namespace

std::u32string da_utf8(std::string_view testo) {
  std::u32string codici;
  codici.reserve(testo.size());
  while (!testo.empty()) {
    char32_t c = 0;
    codici += prendi(testo, c) ? c : carattere_ignoto;
  }
  return codici;
}

std::string in_utf8(std::u32string_view testo) {
  std::string byte;
  byte.reserve(testo.size());
  for (const char32_t c : testo) aggiungi(byte, c);
  return byte;
}

bool utf8_valido(std::string_view testo) {
  while (!testo.empty()) {
    char32_t c = 0;
    if (!prendi(testo, c)) return false;
  }
  return true;
}

std::u32string ripulito(std::u32string_view testo) {
  std::u32string pulito;
  pulito.reserve(testo.size());
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const bool coppia = testo[i] == U'\r' && i + 1 < testo.size() && testo[i + 1] == U'\n';
    if (!coppia) pulito += ammesso(testo[i]);
  }
  return pulito;
}

char32_t minuscola(char32_t c) {
  if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 32 : c;
  if (c >= 0xC0 && c <= 0xDE) return c == 0xD7 ? c : c + 32;
  const bool dispari_prima = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  if (dispari_prima) return (c & 1U) != 0 ? c + 1 : c;
  if (c == 0x130) return U'i';
  if (c == 0x178) return 0xFF;
  if (c >= 0x100 && c <= 0x177 && c != 0x131 && c != 0x138) return c | 1U;
  if (c >= 0x391 && c <= 0x3A9) return c + 32;
  if (c >= 0x410 && c <= 0x42F) return c + 32;
  if (c >= 0x400 && c <= 0x40F) return c + 80;
  return c;
}

}  // namespace trelvo
