#include "platform/runtime_error.h"

namespace trelvo {

namespace {

struct Entry {
  int number;
  const char* text;
};

constexpr Entry texts[] = {
    {error_bad_call, "Chiamata di routine o argomento non validi"},
    {error_overflow, "Overflow"},
    {error_no_memory, "Memoria esaurita"},
    {error_bad_index, "Indice non compreso nell'intervallo"},
    {error_division, "Divisione per zero"},
    {error_type, "Tipo non corrispondente"},
    {error_file_name, "Nome o numero di file non valido"},
    {error_file_not_found, "File non trovato"},
    {error_file_open, "File già aperto"},
    {error_device_io, "Errore di I/O della periferica"},
    {error_disk_full, "Disco pieno"},
    {error_past_end, "Input oltre la fine del file"},
    {error_permission, "Autorizzazione negata"},
    {error_path_access, "Errore di accesso al percorso/file"},
    {error_path_not_found, "Impossibile trovare il percorso"},
    {error_printer, "Errore della stampante"},
};

std::string text_of(int number) {
  for (const Entry& entry : texts) {
    if (entry.number == number) return entry.text;
  }
  return "Errore definito dall'applicazione o dall'oggetto";
}

}  // namespace

RuntimeError::RuntimeError(int number, const std::string& detail) : number_(number), text_(text_of(number)) {
  if (!detail.empty()) text_ += " (" + detail + ")";
}

}  // namespace trelvo
