// Which objects the commands deal with apart from where they lie: the selected ones, and lines and arcs that hold a
// mark of a stretch.
#pragma once

#include "model/oggetti.h"

namespace trelvo {

template <class Oggetto>
bool in_uso(const Oggetto& o) {
  if constexpr (requires { o.vert1_selez; }) {
    if (o.vert1_selez == 1 || o.vert2_selez == 1) return true;
  }
  return o.stato == stato_selezionato;
}

}  // namespace trelvo
