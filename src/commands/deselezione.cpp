#include "commands/deselezione.h"

namespace trelvo {

namespace {

template <class Oggetto>
void togli_segni_da(Oggetto& o) {
  if constexpr (requires { o.vert1_selez; }) {
    o.vert1_selez = 0;
    o.vert2_selez = 0;
  } else if constexpr (requires { o.vertici; }) {
    for (int i = 1; i <= o.vertic(); ++i) o.ins_vertselez(0, i);
  }
}

}  // namespace

bool deseleziona(disegno& dis, bool togli_segni) {
  bool trovato = false;
  visita_selezionati<superficie, Rettangolo, Cerchio, Arco, Linea, polilinea, testo>(dis, [&](auto& oggetto) {
    oggetto.stato = stato_presente;
    trovato = true;
    if (togli_segni) togli_segni_da(oggetto);
  });
  return trovato;
}

}  // namespace trelvo
