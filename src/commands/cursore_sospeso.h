// Gives a cursor the object back that was kept for it.
#pragma once

#include <optional>
#include <utility>

namespace trelvo {

template <class Oggetto>
void rendi_cursore(std::optional<Oggetto>& tenuto, Oggetto& cursore) {
  if (!tenuto) return;
  cursore = std::move(*tenuto);
  tenuto.reset();
}

}  // namespace trelvo
