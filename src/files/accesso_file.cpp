// The standard streams neither tell why they fail nor flush to the disk, hence the system's own calls.
#include "files/accesso_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "files/errori_file.h"

namespace trelvo {

namespace {

constexpr mode_t diritti_nuovo = 0666;

int opzioni(fileaperto::modo come) {
  // Without waiting for the other end of a pipe.
  constexpr int sempre = O_CLOEXEC | O_NONBLOCK;
  switch (come) {
    case fileaperto::modo::lettura:
      return sempre | O_RDONLY;
    case fileaperto::modo::scrittura:
      return sempre | O_WRONLY | O_CREAT;
    case fileaperto::modo::vuotato:
      return sempre | O_WRONLY | O_CREAT | O_TRUNC;
    case fileaperto::modo::nuovo:
      break;
  }
  return sempre | O_WRONLY | O_CREAT | O_EXCL;
}

template <class Chiamata>
auto insisti(Chiamata&& chiamata) {
  for (;;) {
    const auto esito = chiamata();
    if (esito >= 0 || errno != EINTR) return esito;
  }
}

}  // namespace

fileaperto::fileaperto(const std::string& nome, modo come) {
  verifica_nome(nome);
  descrittore_ = insisti([&] { return ::open(nome.c_str(), opzioni(come), diritti_nuovo); });
  if (descrittore_ < 0) throw errore_apertura(errno, nome);
  struct stat stato {};
  int codice = ::fstat(descrittore_, &stato) == 0 ? 0 : errno;
  ordinario_ = S_ISREG(stato.st_mode);
  if (codice == 0 && S_ISDIR(stato.st_mode)) codice = EISDIR;
  if (codice == 0 && come == modo::lettura && !ordinario_) codice = EIO;
  if (codice == 0) return;
  ::close(std::exchange(descrittore_, -1));
  throw errore_apertura(codice, nome);
}

fileaperto::fileaperto(fileaperto&& altro) noexcept
    : descrittore_(std::exchange(altro.descrittore_, -1)), ordinario_(altro.ordinario_), diritti_(altro.diritti_) {}

fileaperto::~fileaperto() {
  if (descrittore_ >= 0) ::close(descrittore_);
}

std::uint64_t fileaperto::lunghezza() const {
  struct stat stato {};
  if (::fstat(descrittore_, &stato) != 0) throw errore_trasferimento(errno);
  return static_cast<std::uint64_t>(stato.st_size);
}

std::size_t fileaperto::leggi(std::span<std::byte> dove) {
  std::size_t letti = 0;
  while (letti < dove.size()) {
    const auto n = insisti([&] { return ::read(descrittore_, dove.data() + letti, dove.size() - letti); });
    if (n < 0) throw errore_trasferimento(errno);
    if (n == 0) break;
    letti += static_cast<std::size_t>(n);
  }
  return letti;
}

void fileaperto::scrivi(std::span<const std::byte> dati) {
  while (!dati.empty()) {
    const auto n = insisti([&] { return ::write(descrittore_, dati.data(), dati.size()); });
    if (n < 0) throw errore_trasferimento(errno);
    dati = dati.subspan(static_cast<std::size_t>(n));
  }
}

void fileaperto::svuota() { [[maybe_unused]] const int esito = ::ftruncate(descrittore_, 0); }

void fileaperto::nascondi(unsigned diritti) {
  struct stat stato {};
  if (::fstat(descrittore_, &stato) != 0) throw errore_trasferimento(errno);
  if (::fchmod(descrittore_, S_IWUSR) == 0) diritti_ = (diritti != 0 ? diritti : stato.st_mode) & 0777U;
}

// Where the rights of a file cannot be chosen it was never hidden.
void fileaperto::scopri() {
  if (diritti_ && insisti([&] { return ::fchmod(descrittore_, *diritti_); }) < 0) throw errore_trasferimento(errno);
  diritti_.reset();
}

void fileaperto::completa() {
  if (ordinario_ && insisti([&] { return ::fsync(descrittore_); }) < 0) throw errore_trasferimento(errno);
  scopri();
  chiudi();
}

void fileaperto::chiudi() {
  if (::close(std::exchange(descrittore_, -1)) < 0 && errno != EINTR) throw errore_trasferimento(errno);
}

namespace {

bool apribile(const std::string& nome, fileaperto::modo come) {
  try {
    const fileaperto prova(nome, come);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace

bool leggibile(const std::string& nome) { return apribile(nome, fileaperto::modo::lettura); }

std::string impronta(const std::string& nome) {
  struct stat stato {};
  if (::stat(nome.c_str(), &stato) != 0 || !S_ISREG(stato.st_mode)) return {};
  std::string segni;
  for (const auto numero : {static_cast<std::intmax_t>(stato.st_dev), static_cast<std::intmax_t>(stato.st_ino),
                            static_cast<std::intmax_t>(stato.st_size), static_cast<std::intmax_t>(stato.st_mtim.tv_sec),
                            static_cast<std::intmax_t>(stato.st_mtim.tv_nsec)}) {
    segni += std::to_string(numero) + ' ';
  }
  return segni;
}

bool scrivibile(const std::string& nome) { return apribile(nome, fileaperto::modo::scrittura); }

}  // namespace trelvo
