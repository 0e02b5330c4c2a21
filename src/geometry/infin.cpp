#include "geometry/infin.h"

#include <algorithm>

namespace trelvo {

bool verticiinfin(const finestra& f, std::span<const vertice> vertici) {
  return std::all_of(vertici.begin(), vertici.end(), [&](const vertice& v) { return f.contiene(v.x, v.y); });
}

}  // namespace trelvo
