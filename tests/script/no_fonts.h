// A font service without letters, for what does not write any.
#pragma once

#include "platform/graphics.h"

namespace trelvo {

struct NoFonts : FontService {
  Size extent(const Font&, const std::string&) override { return {}; }
  GlyphMask mask(const Font&, const std::string&) override { return {}; }
};

}  // namespace trelvo
