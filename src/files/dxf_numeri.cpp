// The shortest digits that read back equal are quicker to find than a given count of them, and where they are at most
// 15 they are the 15 significant ones as well. Longer ones are rounded to 15: a point half-way between two such numbers
// has 16 digits, so if one lay between the value and its shortest digits it would be shorter or nearer than they are.
// That leaves the digits that are half-way themselves to the exact conversion, as all that is no normal number.
#include "files/dxf_numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "platform/numbers.h"

namespace trelvo {

namespace {

constexpr int cifre_significative = 15;
constexpr double intero_massimo = 1e15;
constexpr int esponente_minimo = -4;  // below it, and from 15 on, with an exponent

char* copia(char* dove, const std::string& testo) { return std::copy(testo.begin(), testo.end(), dove); }

// Digits d0 d1 d2 ... of d0.d1d2... times ten to the exponent.
struct cifredecimali {
  std::array<char, 24> cifra;
  int numero = 0;
  int esponente = 0;
};

cifredecimali piu_brevi(double positivo) {
  std::array<char, 32> testo;
  const auto [fine, errore] =
      std::to_chars(testo.data(), testo.data() + testo.size(), positivo, std::chars_format::scientific);
  cifredecimali c;
  const char* p = testo.data();
  for (; *p != 'e'; ++p) {
    if (*p != '.') c.cifra[static_cast<std::size_t>(c.numero++)] = *p;
  }
  ++p;
  const bool negativo = *p++ == '-';
  for (; p != fine; ++p) c.esponente = c.esponente * 10 + (*p - '0');
  if (negativo) c.esponente = -c.esponente;
  return c;
}

// False for digits that lie half-way.
bool arrotonda(cifredecimali& c) {
  if (c.numero > cifre_significative) {
    const char prossima = c.cifra[cifre_significative];
    if (prossima == '5' && c.numero == cifre_significative + 1) return false;
    c.numero = cifre_significative;
    if (prossima >= '5') {
      while (c.numero > 0 && c.cifra[static_cast<std::size_t>(c.numero - 1)] == '9') --c.numero;
      if (c.numero == 0) {
        c.cifra[0] = '1';
        c.numero = 1;
        ++c.esponente;
      } else {
        ++c.cifra[static_cast<std::size_t>(c.numero - 1)];
      }
    }
  }
  while (c.numero > 1 && c.cifra[static_cast<std::size_t>(c.numero - 1)] == '0') --c.numero;
  return true;
}

char* con_esponente(char* dove, const cifredecimali& c) {
  const char* cifre = c.cifra.data();
  *dove++ = *cifre;
  if (c.numero > 1) {
    *dove++ = '.';
    dove = std::copy(cifre + 1, cifre + c.numero, dove);
  }
  *dove++ = 'E';
  *dove++ = c.esponente < 0 ? '-' : '+';
  const int esponente = std::abs(c.esponente);
  if (esponente < 10) *dove++ = '0';
  return std::to_chars(dove, dove + 4, esponente).ptr;
}

char* con_punto(char* dove, const cifredecimali& c) {
  const char* cifre = c.cifra.data();
  const int intere = c.esponente + 1;  // digits before the point
  if (intere >= c.numero) {
    dove = std::copy(cifre, cifre + c.numero, dove);
    return std::fill_n(dove, intere - c.numero, '0');
  }
  if (intere > 0) dove = std::copy(cifre, cifre + intere, dove);
  *dove++ = '.';
  if (intere < 0) dove = std::fill_n(dove, -intere, '0');
  return std::copy(cifre + std::max(intere, 0), cifre + c.numero, dove);
}

}  // namespace

char* scrivi_numero(char* dove, double valore) {
  const double positivo = std::fabs(valore);
  if (positivo < intero_massimo && positivo == std::trunc(positivo)) {
    return std::to_chars(dove, dove + numero_piu_lungo, static_cast<std::int64_t>(valore)).ptr;
  }
  if (!std::isnormal(valore)) return copia(dove, number_text_trimmed(valore));
  cifredecimali c = piu_brevi(positivo);
  if (!arrotonda(c)) return copia(dove, number_text_trimmed(valore));
  if (valore < 0) *dove++ = '-';
  return c.esponente < esponente_minimo || c.esponente >= cifre_significative ? con_esponente(dove, c)
                                                                              : con_punto(dove, c);
}

}  // namespace trelvo
