// Puts a surface's width and style back after a line that may fail.
#pragma once

#include "platform/surface.h"

namespace trelvo {

class conserva_tratto {
 public:
  explicit conserva_tratto(Surface& s) : surface_(s), spessore_(s.DrawWidth), stile_(s.DrawStyle) {}
  conserva_tratto(const conserva_tratto&) = delete;
  conserva_tratto& operator=(const conserva_tratto&) = delete;
  ~conserva_tratto() {
    surface_.DrawWidth = spessore_;
    surface_.DrawStyle = stile_;
  }

 private:
  Surface& surface_;
  std::int16_t spessore_;
  std::int32_t stile_;
};

}  // namespace trelvo
