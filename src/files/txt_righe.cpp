#include "files/txt_righe.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

constexpr std::size_t lunghezza_blocco = std::size_t{1} << 18;

std::string_view senza_blank(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(" \t");
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(" \t") - inizio + 1);
}

// The first line end from here on; there is one.
const char* fine_riga(const char* da) {
  for (;; ++da) {
    while (static_cast<unsigned char>(*da) > '\r') ++da;
    if (*da == '\n' || *da == '\r') return da;
  }
}

}  // namespace

righetxt::righetxt(prelievo preleva) : preleva_(std::move(preleva)), blocco_(lunghezza_blocco + 1, '\n') {}

// Moves what is left to the front and reads on behind it.
bool righetxt::rifornisci() {
  if (finito_) return false;
  std::memmove(blocco_.data(), blocco_.data() + inizio_, fine_ - inizio_);
  fine_ -= inizio_;
  inizio_ = 0;
  if (fine_ + 1 == blocco_.size()) blocco_.resize(2 * fine_ + 1);
  const std::span<char> posto(blocco_.data() + fine_, blocco_.size() - 1 - fine_);
  const std::size_t letti = preleva_(std::as_writable_bytes(posto));
  finito_ = letti < posto.size();
  fine_ += letti;
  blocco_[fine_] = '\n';
  return letti > 0;
}

bool righetxt::avanza(std::string_view& riga) {
  if (resto_) {
    ripresa_ = std::move(*resto_);
    resto_.reset();
    riga = ripresa_;
    return true;
  }
  std::size_t cercati = 0;
  for (;;) {
    const char* da = blocco_.data() + inizio_;
    if (dopo_cr_ && inizio_ < fine_) {
      dopo_cr_ = false;
      if (*da == '\n') {
        ++inizio_;
        continue;
      }
    }
    const char* fine = fine_riga(da + cercati);
    cercati = static_cast<std::size_t>(fine - da);
    terminata_ = inizio_ + cercati < fine_;
    if (terminata_ || !rifornisci()) break;
  }
  riga = std::string_view(blocco_.data() + inizio_, cercati);
  inizio_ += cercati;
  if (!terminata_) return !riga.empty();
  dopo_cr_ = blocco_[inizio_] == '\r';
  ++inizio_;
  return true;
}

std::string righetxt::valore() {
  std::string_view riga;
  if (!avanza(riga)) throw RuntimeError(error_past_end);
  const std::size_t primo = riga.find_first_not_of(" \t");
  const bool virgolette = primo != std::string_view::npos && riga[primo] == '"';
  const std::size_t chiusura = virgolette ? riga.find('"', primo + 1) : 0;
  const std::size_t virgola = riga.find(',', std::min(chiusura, riga.size()));
  std::string valore(virgolette ? riga.substr(primo + 1, std::min(chiusura, riga.size()) - primo - 1)
                                : senza_blank(riga.substr(0, virgola)));
  if (virgola != std::string_view::npos) {
    const std::string_view resto = riga.substr(virgola + 1);
    if (terminata_ || !resto.empty()) resto_ = resto;
  }
  return valore;
}

}  // namespace trelvo
