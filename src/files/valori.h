// Values as they stand in the binary files: little-endian numbers, and values with a type tag in front.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <variant>

#include "document/stato.h"

namespace trelvo {

template <class Numero>
Numero prendi(const std::byte* da) {
  std::array<std::byte, sizeof(Numero)> copia;
  std::memcpy(copia.data(), da, sizeof(Numero));
  if constexpr (std::endian::native == std::endian::big) std::reverse(copia.begin(), copia.end());
  return std::bit_cast<Numero>(copia);
}

template <class Numero>
void metti(std::byte* dove, Numero valore) {
  auto copia = std::bit_cast<std::array<std::byte, sizeof(Numero)>>(valore);
  if constexpr (std::endian::native == std::endian::big) std::reverse(copia.begin(), copia.end());
  std::memcpy(dove, copia.data(), sizeof(Numero));
}

using valoretipizzato = std::variant<std::int16_t, double, std::string>;

// At the start of a slot; a text that is longer than the slot is cut. Texts are in the code page on disk.
void metti_tipizzato(std::span<std::byte> slot, const valoretipizzato& valore);
// Error 13 for a tag that is none, or a text longer than its slot; 62 for a value that the slot does not hold in full.
valoretipizzato prendi_tipizzato(std::span<const std::byte> slot);

// A 16-bit byte count and the bytes, no tag.
void metti_testo(std::span<std::byte> slot, const std::string& testo);
std::string prendi_testo(std::span<const std::byte> slot);

// Palette indices keep their form. Error 9 for none, 13 for a text.
valoretipizzato tipizzato(const indicecolore& colore);
indicecolore colore_tipizzato(const valoretipizzato& valore);

// Error 13 for a text or a double with a fraction.
std::int32_t intero_tipizzato(const valoretipizzato& valore);
// Error 13 for a number.
const std::string& testo_tipizzato(const valoretipizzato& valore);

}  // namespace trelvo
