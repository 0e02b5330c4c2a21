// A vertex, in drawing units.
#pragma once

namespace trelvo {

struct vertice {
  double x = 0;
  double y = 0;
  bool operator==(const vertice&) const = default;
};

}  // namespace trelvo
