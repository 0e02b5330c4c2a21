// One object on paper.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

void su_carta(distipo& doc, const Linea& o);
void su_carta(distipo& doc, const Cerchio& o);
void su_carta(distipo& doc, const Arco& o);
void su_carta(distipo& doc, const Rettangolo& o);
void su_carta(distipo& doc, const superficie& o);
void su_carta(distipo& doc, const polilinea& o);
void su_carta(distipo& doc, const testo& o);

}  // namespace trelvo
