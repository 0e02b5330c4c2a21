// A file that takes the place of another one of its name. The old one is moved away first, and goes for good, if at
// all, only when the new one is complete on the disk. Until then the new one cannot be read, so that nobody takes it
// for whole.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "files/accesso_file.h"
#include "platform/runtime_error.h"

namespace trelvo {

// Where a link leads, also if nothing is there; any other name as it is. Error 52 for a name that no file can have.
std::string file_vero(const std::string& nome);

// A file that its owner may read.
bool leggibile_per_diritti(const std::filesystem::file_status& stato);

class sostituzione {
 public:
  // What stands at `nome` is kept under that name followed by "~" (name_beside), or by more of them if such a file is
  // there. If this fails, or if it may not be written, nothing has changed. A device is written as it is.
  // It goes when the new one is complete, unless it is to stay.
  explicit sostituzione(const std::string& nome, bool vecchio_resta = false);
  sostituzione(const sostituzione&) = delete;
  sostituzione& operator=(const sostituzione&) = delete;
  // Without `concludi` the part that was written goes, and the old file stays where it is kept.
  ~sostituzione();

  void scrivi(std::span<const std::byte> dati) { file_->scrivi(dati); }
  void concludi();

  // The same error, telling where the old file is kept.
  RuntimeError annotato(int errore) const;

 private:
  void metti_da_parte();
  void apri();

  std::string nome_;
  std::string conservato_;  // empty: there was nothing to keep
  unsigned diritti_ = 0;
  bool vecchio_resta_;
  bool ordinario_ = true;
  bool concluso_ = false;
  std::optional<fileaperto> file_;
};

}  // namespace trelvo
