#include "properties/proprieta.h"

#include "properties/elenco_vertici.h"
#include "properties/gesttesto.h"
#include "properties/tipolinea.h"
#include "properties/tiposuperficie.h"

namespace trelvo {

void prepara_proprieta(trelvobas& bas) {
  prepara_CoordVert(bas);
  prepara_TipoLinea(bas);
  prepara_TipoSuperficie(bas);
  prepara_Gesttesto(bas);
  bas.proprieta = {proprieta_superfici, proprieta_linee, proprieta_rettangoli, proprieta_testi,
                   proprieta_cerchi,    proprieta_archi, proprieta_polilinee};
}

}  // namespace trelvo
