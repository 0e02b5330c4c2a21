// Reads the object records of a drawing file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

#include "document/reccomando.h"
#include "model/disegno.h"

namespace trelvo {

// Fills the given bytes with the next ones of the file; fewer only at its end.
using prelievo = std::function<std::size_t(std::span<std::byte>)>;

struct letturadis {
  bool riconosciuti = false;  // a record was that of an object
  bool intero = true;         // nothing was passed over
  reccomando scarto;          // image of the last record that was read; as it was if there is none
};

// Adds to `dis` the objects of the records up to the end. A record that is not there in full ends the reading, as does
// a vertex count below 0; the object they belong to is not added. Error 6 for a number that is not finite, and whatever
// `preleva` throws; what was read before stays, in `dis` as in `esito`.
void leggi_oggetti(const prelievo& preleva, disegno& dis, letturadis& esito);

}  // namespace trelvo
