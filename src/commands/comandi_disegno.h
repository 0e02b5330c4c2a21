// Rows of the drawing commands in the table, and of the measure.
#pragma once

#include <vector>

#include "commands/comando.h"

namespace trelvo {

comando riga_linea();
comando riga_cerchio();
comando riga_arco();
comando riga_rettangolo();
comando riga_polilinea();
comando riga_superficie();
comando riga_distanza();

inline std::vector<comando> comandi_disegno() {
  return {riga_linea(),      riga_cerchio(),    riga_arco(),    riga_polilinea(),
          riga_superficie(), riga_rettangolo(), riga_distanza()};
}

}  // namespace trelvo
