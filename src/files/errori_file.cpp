#include "files/errori_file.h"

#include <cerrno>
#include <filesystem>

namespace trelvo {

namespace {

bool cartella_presente(const std::string& nome) {
  const std::filesystem::path cartella = std::filesystem::path(nome).parent_path();
  std::error_code ignorato;
  return cartella.empty() || std::filesystem::is_directory(cartella, ignorato);
}

bool sicuramente_assente(const std::string& nome) {
  std::error_code errore;
  return std::filesystem::symlink_status(nome, errore).type() == std::filesystem::file_type::not_found;
}

int numero_trasferimento(int codice) {
  switch (codice) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return error_disk_full;
    case ENOMEM:
      return error_no_memory;
    default:
      return error_device_io;
  }
}

int numero_apertura(int codice, const std::string& nome) {
  switch (codice) {
    case ENAMETOOLONG:
    case EILSEQ:
    case EINVAL:
      return error_file_name;
    case ENOENT:
      return cartella_presente(nome) ? error_file_not_found : error_path_not_found;
    case ENOTDIR:
      return error_path_not_found;
    // A file that is not there yet is refused by its folder.
    case EACCES:
    case EPERM:
      return sicuramente_assente(nome) ? error_path_access : error_permission;
    case EISDIR:
    case EROFS:
    case ELOOP:
      return error_path_access;
    case EBUSY:
    case ETXTBSY:
      return error_permission;
    default:
      return numero_trasferimento(codice);
  }
}

}  // namespace

void verifica_nome(const std::string& nome) {
  if (nome.empty() || nome.find('\0') != std::string::npos) throw RuntimeError(error_file_name);
}

RuntimeError errore_apertura(int codice, const std::string& nome) {
  return RuntimeError(numero_apertura(codice, nome));
}

RuntimeError errore_trasferimento(int codice, const std::string& dettaglio) {
  return RuntimeError(numero_trasferimento(codice), dettaglio);
}

}  // namespace trelvo
