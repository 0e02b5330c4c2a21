// An open file of the system, closed when it goes. Names are paths in UTF-8. Errors are those of errori_file.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace trelvo {

class fileaperto {
 public:
  enum class modo {
    lettura,    // what is there
    scrittura,  // in place, keeping the contents; made if missing
    nuovo,      // made, error if there is one
    vuotato,    // in place, emptied; made if missing
  };

  // A folder raises error 75. Neither a pipe nor a device can be read; they can be written.
  fileaperto(const std::string& nome, modo come);
  fileaperto(fileaperto&& altro) noexcept;
  fileaperto(const fileaperto&) = delete;
  fileaperto& operator=(const fileaperto&) = delete;
  ~fileaperto();

  std::uint64_t lunghezza() const;
  // Fills `dove` as far as the file goes; how much of it.
  std::size_t leggi(std::span<std::byte> dove);
  // All of it.
  void scrivi(std::span<const std::byte> dati);
  // Nothing of it is left, as far as the system lets.
  void svuota();
  // Nobody can read the file until it is complete. Then it has these rights, or those it was made with for 0.
  void nascondi(unsigned diritti);
  // Closed, and told if that fails; `completa` first brings everything to the disk.
  void chiudi();
  void completa();

 private:
  void scopri();

  int descrittore_ = -1;
  bool ordinario_ = false;
  std::optional<unsigned> diritti_;  // while it is hidden
};

// Whether the file can be opened for reading: it is there, and no folder.
bool leggibile(const std::string& nome);

// Tells one state of a file from any other: which file it is, its length, when it was written. Empty for no file.
std::string impronta(const std::string& nome);

// Whether the file can be opened for writing; makes an empty one if it is missing, and keeps the contents of one that
// is there.
bool scrivibile(const std::string& nome);

}  // namespace trelvo
