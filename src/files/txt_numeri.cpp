#include "files/txt_numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/text.h"

namespace trelvo {

namespace {

// A double holds whole numbers up to the first and these powers exactly, so that one division rounds correctly.
constexpr std::uint64_t intero_esatto = std::uint64_t{1} << 53;
constexpr std::array potenze{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
// As many digits fit 64 bits.
constexpr std::size_t cifre_intere = 19;
constexpr std::size_t cifre_massime = 60;

bool cifra(char c) { return c >= '0' && c <= '9'; }

std::string_view senza_blank(std::string_view testo) {
  while (!testo.empty() && testo.front() == ' ') testo.remove_prefix(1);
  while (!testo.empty() && testo.back() == ' ') testo.remove_suffix(1);
  return testo;
}

}  // namespace

numeritxt::numeritxt(RegionalFormat formato) : formato_(std::move(formato)), decimale_(0) {
  if (formato_.decimal.size() == 1) decimale_ = formato_.decimal[0];
}

double numeritxt::operator()(std::string_view byte) const {
  double valore = 0;
  return semplice(byte, valore) ? valore : regional_number(from_code_page(byte), formato_);
}

// A sign, digits, a separator, digits, and nothing else. False for everything that is not so.
bool numeritxt::semplice(std::string_view byte, double& valore) const {
  const std::string_view testo = senza_blank(byte);
  const char* c = testo.data();
  const char* const fine = c + testo.size();
  const bool meno = c != fine && *c == '-';
  if (c != fine && (*c == '-' || *c == '+')) ++c;
  const char* const prima = c;
  std::uint64_t intero = 0;
  for (; c != fine && cifra(*c); ++c) intero = intero * 10 + static_cast<std::uint64_t>(*c - '0');
  const auto intere = static_cast<std::size_t>(c - prima);
  std::size_t decimali = 0;
  if (c != fine && decimale_ != 0 && *c == decimale_) {
    const char* const dopo = ++c;
    for (; c != fine && cifra(*c); ++c) intero = intero * 10 + static_cast<std::uint64_t>(*c - '0');
    decimali = static_cast<std::size_t>(c - dopo);
  }
  const std::size_t cifre = intere + decimali;
  if (c != fine || cifre == 0 || cifre > cifre_massime) return false;
  if (cifre <= cifre_intere && intero <= intero_esatto) {
    valore = static_cast<double>(intero) / potenze[decimali];
    if (meno) valore = -valore;
    return true;
  }
  std::array<char, cifre_massime + 2> punto;
  char* p = punto.data();
  if (meno) *p++ = '-';
  p = std::copy(prima, fine, p);
  if (decimali > 0) *(p - decimali - 1) = '.';
  const auto [letto, errore] = std::from_chars(punto.data(), p, valore);
  return errore == std::errc() && (letto == p || decimali == 0);
}

}  // namespace trelvo
