#include "model/oggetti.h"

#include "platform/numbers.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::size_t lunghezza_carattere = 32;

void preleva(const elencovertici& vertici, double& x, double& y, int i) {
  const vertice& v = vertici.preleva(i);
  x = v.x;
  y = v.y;
}

}  // namespace

void polilinea::prel_vert_pol(double& x, double& y, int i) const { preleva(vertici, x, y, i); }
void Rettangolo::prel_vert_ret(double& x, double& y, int i) const { preleva(vertici, x, y, i); }
void superficie::prel_vert_sup(double& x, double& y, int i) const { preleva(vertici, x, y, i); }

void testo::carattere_testo(const std::string& nome) {
  carattere_ = fixed_string(nome + std::string(1, '\0'), lunghezza_carattere);
}

std::string testo::nome_carattere() const { return right_trimmed(carattere_.substr(0, carattere_.find('\0'))); }

std::int32_t testo::ang_testo() const { return round_to_int32(angolo_); }

}  // namespace trelvo
