#include "document/contorno.h"

#include <array>

namespace trelvo {

void aggiungi_tratti(Form& form, ControlArray<PictureBox>& campioni) {
  int indice = 0;
  for (const char* nome :
       {"Trasparente", "Linea Continua", "Tratteggiato", "Punteggiato", "Tratto-Punto", "Tratto-Punto-Punto"}) {
    campioni.add(form, "picture1", indice++).ToolTipText.set(nome);
  }
}

}  // namespace trelvo
