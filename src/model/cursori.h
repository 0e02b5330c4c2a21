// The objects in progress, shared by all documents, and where a suspended command keeps its own.
// Assigning a fresh object empties a cursor.
#pragma once

#include <optional>

#include "model/oggetti.h"

namespace trelvo {

struct cursori {
  superficie curSuperficie;
  Rettangolo curRettangolo;
  Linea curLinea;
  Arco curArco;
  polilinea curPolilinea;
  Cerchio curCerchio;
  testo curTesto;

  std::optional<Linea> sosLinea;
  std::optional<superficie> sosSuperficie;
  std::optional<Rettangolo> sosRettangolo;
  std::optional<testo> sosTesto;
  std::optional<Arco> sosArco;
  std::optional<Cerchio> sosCerchio;
  std::optional<polilinea> sosPolilinea;
};

}  // namespace trelvo
