// One object on the sheet in the dialog.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

void anteprima(distipo& doc, const Linea& o);
void anteprima(distipo& doc, const Cerchio& o);
void anteprima(distipo& doc, const Arco& o);
void anteprima(distipo& doc, const Rettangolo& o);
void anteprima(distipo& doc, const superficie& o);
void anteprima(distipo& doc, const polilinea& o);
void anteprima(distipo& doc, const testo& o);

}  // namespace trelvo
