// Inner parts of polygons, by the even-odd rule. A pixel belongs to the inside of its own point: edges at the left
// and at the top count in, those at the right and at the bottom do not.
#pragma once

#include <span>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

void fill_polygon(Bitmap& bitmap, const BrushInk& ink, std::span<const Point> points);

}  // namespace trelvo::raster
