#include "model/predefiniti.h"

namespace trelvo {

void inizializ_varLinee(predefiniti& def) {
  def.colorelineadef = 0;
  def.spessorelineadef = 0;
  def.tipolineadef = 0;
}

void inizializ_varSup(predefiniti& def) {
  def.campituradef = 7;
  def.colocampituradef = 0;
  def.colcontdef = 0;
  def.spescontdef = 0;
  def.trattcontdef = 0;
}

}  // namespace trelvo
