// What a copy takes from its source, before its points move. The rest is as in a new object.
#pragma once

#include "model/oggetti.h"

namespace trelvo {

Linea copia_di(const Linea& o);
Arco copia_di(const Arco& o);
Cerchio copia_di(const Cerchio& o);
polilinea copia_di(const polilinea& o);
Rettangolo copia_di(const Rettangolo& o);
superficie copia_di(const superficie& o);
testo copia_di(const testo& o);

}  // namespace trelvo
