// What a new object takes: defaults shared by all documents.
#pragma once

#include <cstdint>

namespace trelvo {

struct predefiniti {
  std::int32_t colorelineadef = 0;
  std::int32_t spessorelineadef = 0;
  std::int32_t tipolineadef = 0;
  std::int32_t campituradef = 7;
  std::int32_t colocampituradef = 0;
  std::int32_t colcontdef = 0;
  std::int32_t spescontdef = 0;
  std::int32_t trattcontdef = 0;
};

void inizializ_varLinee(predefiniti& def);
void inizializ_varSup(predefiniti& def);

}  // namespace trelvo
