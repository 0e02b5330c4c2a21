// Numbers as a DXF file has them.
#pragma once

#include <cstddef>

namespace trelvo {

constexpr std::size_t numero_piu_lungo = 32;

// What number_text_trimmed gives, at `dove`, which has room for numero_piu_lungo characters; gives the place behind it.
// Without an allocation.
char* scrivi_numero(char* dove, double valore);

}  // namespace trelvo
