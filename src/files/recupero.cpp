#include "files/recupero.h"

#include <filesystem>

#include "files/accesso_file.h"
#include "files/comandi_file.h"
#include "files/sostituzione.h"
#include "platform/whole_file.h"

namespace trelvo {

namespace {

namespace fs = std::filesystem;

std::optional<fs::file_time_type> scritto(const std::string& nome) {
  std::error_code errore;
  const fs::file_time_type quando = fs::last_write_time(nome, errore);
  if (errore) return std::nullopt;
  return quando;
}

// Whatever the rights of who asks: the administrator reads everything.
bool completo(const std::string& nome) {
  std::error_code errore;
  return leggibile_per_diritti(fs::status(nome, errore)) && fs::file_size(nome, errore) > 0;
}

}  // namespace

std::string copia_recuperabile(const std::string& nome) {
  std::error_code ignorato;
  const std::string disegno = file_vero(nome);
  const fs::file_status stato = fs::status(disegno, ignorato);
  if (fs::exists(stato) && !fs::is_regular_file(stato)) return {};
  std::string ultima;
  for (std::size_t segni = 1;; ++segni) {
    const std::string copia = name_beside(disegno, segni);
    if (!fs::exists(fs::symlink_status(copia, ignorato))) break;
    if (completo(copia) && (ultima.empty() || scritto(copia) > scritto(ultima))) ultima = copia;
  }
  if (ultima.empty() || !leggibile(ultima)) return {};
  return !completo(disegno) || scritto(ultima) > scritto(disegno) ? ultima : std::string();
}

std::optional<std::string> scegli_sorgente(Desktop& desktop, const std::string& nome) {
  const std::string copia = nome.empty() || testo_di_disegno(nome) ? std::string() : copia_recuperabile(nome);
  if (copia.empty()) return nome;
  switch (desktop.message_box("File \"" + copia + "\" copia di sicurezza più recente del disegno - Aprire la copia?",
                              Buttons::yes_no_cancel)) {
    case answer_yes:
      return copia;
    case answer_no:
      return nome;
    default:
      return std::nullopt;
  }
}

}  // namespace trelvo
