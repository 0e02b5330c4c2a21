// The most memory that this process held since it was last asked to start counting.
#pragma once

#include <malloc.h>

#include <cstdint>
#include <fstream>
#include <limits>
#include <string>

namespace trelvo {

// What an earlier benchmark freed does not count.
inline void azzera_memoria_massima() {
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";
}

// In bytes; 0 where the system does not tell.
inline std::uint64_t memoria_massima() {
  constexpr std::uint64_t kilo = 1024;
  std::ifstream stato("/proc/self/status");
  for (std::string nome; stato >> nome; stato.ignore(std::numeric_limits<std::streamsize>::max(), '\n')) {
    std::uint64_t valore = 0;
    if (nome == "VmHWM:" && stato >> valore) return valore * kilo;
  }
  return 0;
}

}  // namespace trelvo
