#include "report/rtf_segni.h"

#include <algorithm>
#include <limits>

namespace trelvo {

namespace {

constexpr std::string_view fuori_testo{"\\{}\r\n\0", 6};

bool lettera(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool cifra(char c) { return c >= '0' && c <= '9'; }

int valore_esadecimale(char c) {
  if (cifra(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

segnortf segnirtf::prossimo() {
  using tipo = segnortf::tipo;
  const std::size_t inizio = resto_.find_first_not_of(std::string_view("\r\n\0", 3));
  resto_.remove_prefix(std::min(inizio, resto_.size()));
  if (resto_.empty()) return {};
  const char primo = resto_.front();
  if (primo != '{' && primo != '}' && primo != '\\') {
    const std::string_view testo = resto_.substr(0, resto_.find_first_of(fuori_testo));
    resto_.remove_prefix(testo.size());
    return {tipo::testo, testo};
  }
  resto_.remove_prefix(1);
  if (primo == '\\') return comando();
  return {primo == '{' ? tipo::apre : tipo::chiude, {}};
}

segnortf segnirtf::comando() {
  if (resto_.empty()) return {};
  if (lettera(resto_.front())) return parola();
  if (resto_.front() == '\'') return byte_scritto();
  const std::string_view uno = resto_.substr(0, 1);
  resto_.remove_prefix(1);
  return {segnortf::tipo::simbolo, uno};
}

segnortf segnirtf::parola() {
  const auto fine = std::find_if_not(resto_.begin(), resto_.end(), lettera);
  segnortf segno{segnortf::tipo::parola, resto_.substr(0, static_cast<std::size_t>(fine - resto_.begin()))};
  resto_.remove_prefix(segno.testo.size());
  numero_di(segno);
  if (!resto_.empty() && resto_.front() == ' ') resto_.remove_prefix(1);
  if (segno.testo == "bin" && segno.numero > 0) {
    resto_.remove_prefix(std::min(static_cast<std::size_t>(segno.numero), resto_.size()));
  }
  return segno;
}

void segnirtf::numero_di(segnortf& segno) {
  const bool meno = resto_.size() > 1 && resto_[0] == '-' && cifra(resto_[1]);
  if (meno) resto_.remove_prefix(1);
  constexpr long long massimo = std::numeric_limits<int>::max();
  long long numero = 0;
  while (!resto_.empty() && cifra(resto_.front())) {
    segno.con_numero = true;
    numero = std::min(numero * 10 + (resto_.front() - '0'), massimo);
    resto_.remove_prefix(1);
  }
  segno.numero = static_cast<int>(meno ? -numero : numero);
}

// Two digits; without them there is no byte, only a symbol that says nothing.
segnortf segnirtf::byte_scritto() {
  const int alto = resto_.size() > 1 ? valore_esadecimale(resto_[1]) : -1;
  const int basso = resto_.size() > 2 ? valore_esadecimale(resto_[2]) : -1;
  if (alto < 0 || basso < 0) {
    const segnortf nulla{segnortf::tipo::simbolo, resto_.substr(0, 1)};
    resto_.remove_prefix(1);
    return nulla;
  }
  resto_.remove_prefix(3);
  return {segnortf::tipo::byte, {}, true, alto * 16 + basso};
}

}  // namespace trelvo
