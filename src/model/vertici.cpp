#include "model/vertici.h"

#include "platform/runtime_error.h"

namespace trelvo {

void elencovertici::vertic(std::int16_t numero) {
  if (numero < 0) fuoriintervallo();
  punti_.resize(static_cast<std::size_t>(numero) + 1);
  segni_.resize(static_cast<std::size_t>(numero) + 1);
}

void elencovertici::fuoriintervallo() { throw RuntimeError(error_bad_index); }

}  // namespace trelvo
