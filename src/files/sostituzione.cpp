#include "files/sostituzione.h"

#include <filesystem>

#include "files/errori_file.h"
#include "platform/whole_file.h"

namespace trelvo {

namespace {

namespace fs = std::filesystem;

std::string nome_libero(const std::string& nome) {
  std::error_code ignorato;
  std::string libero;
  std::size_t segni = 0;
  do {
    libero = name_beside(nome, ++segni);
  } while (fs::exists(fs::symlink_status(libero, ignorato)));
  return libero;
}

}  // namespace

// A link stays a link: the file that it leads to is the one replaced.
std::string file_vero(const std::string& nome) {
  verifica_nome(nome);
  constexpr int collegamenti_massimi = 40;
  std::error_code errore;
  fs::path vero = nome;
  for (int i = 0; i < collegamenti_massimi && fs::is_symlink(vero, errore); ++i) {
    const fs::path meta = fs::read_symlink(vero, errore);
    if (errore) return nome;
    vero = meta.is_absolute() ? meta : vero.parent_path() / meta;
  }
  return vero.string();
}

bool leggibile_per_diritti(const fs::file_status& stato) {
  return fs::is_regular_file(stato) && (stato.permissions() & fs::perms::owner_read) != fs::perms::none;
}

sostituzione::sostituzione(const std::string& nome, bool vecchio_resta)
    : nome_(file_vero(nome)), vecchio_resta_(vecchio_resta) {
  std::error_code ignorato;
  const fs::file_status stato = fs::status(nome_, ignorato);
  if (fs::is_regular_file(stato)) {
    // What may not be written is not to be replaced either.
    fileaperto(nome_, fileaperto::modo::scrittura).chiudi();
    // An unfinished file is not meant to last, nor are its rights.
    if (leggibile_per_diritti(stato)) {
      diritti_ = static_cast<unsigned>(stato.permissions());
    } else {
      vecchio_resta_ = false;
    }
    metti_da_parte();
  } else {
    ordinario_ = !fs::exists(stato);
  }
  apri();
}

void sostituzione::metti_da_parte() {
  std::error_code errore;
  if (fs::file_size(nome_, errore) == 0) {
    fs::remove(nome_, errore);
  } else {
    const std::string libero = nome_libero(nome_);
    fs::rename(nome_, libero, errore);
    if (!errore) conservato_ = libero;
  }
  if (errore) throw errore_apertura(errore.value(), nome_);
}

void sostituzione::apri() {
  try {
    file_.emplace(nome_, ordinario_ ? fileaperto::modo::nuovo : fileaperto::modo::scrittura);
    if (ordinario_) file_->nascondi(diritti_);
  } catch (...) {
    std::error_code ignorato;
    if (file_ && ordinario_) fs::remove(nome_, ignorato);
    if (!conservato_.empty()) fs::rename(conservato_, nome_, ignorato);
    throw;
  }
}

sostituzione::~sostituzione() {
  if (concluso_ || !ordinario_) return;
  file_.reset();
  std::error_code ignorato;
  fs::remove(nome_, ignorato);
}

void sostituzione::concludi() {
  file_->completa();
  concluso_ = true;
  std::error_code ignorato;
  if (!conservato_.empty() && !vecchio_resta_) fs::remove(conservato_, ignorato);
}

RuntimeError sostituzione::annotato(int errore) const {
  if (conservato_.empty()) return RuntimeError(errore);
  return RuntimeError(errore, "il disegno precedente è in \"" + conservato_ + "\"");
}

}  // namespace trelvo
