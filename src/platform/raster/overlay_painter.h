// Paints overlay lines and shapes over a copy of a surface's picture.
#pragma once

#include <span>

#include "platform/overlay.h"
#include "platform/surface.h"

namespace trelvo {

// Those that are visible, the shapes below the lines. The surface gives the logical coordinates.
void paint_overlays(Bitmap& bitmap, const Surface& surface, std::span<const OverlayLine* const> lines,
                    std::span<const OverlayShape* const> shapes);

}  // namespace trelvo
