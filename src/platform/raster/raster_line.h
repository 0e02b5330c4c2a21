// Lines of one pixel. Of two pixels equally near, the upper or left one is taken, whichever way a line runs.
#pragma once

#include <span>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

// Solid, with both end points, which lie in the bitmap.
void inner_line(Bitmap& bitmap, Point from, Point to, std::uint32_t pixel);

// With both end points.
void line(Bitmap& bitmap, const DashInk& ink, Point from, Point to);

// Without the last point. Dashes run on through the corners.
void polyline(Bitmap& bitmap, const DashInk& ink, std::span<const Point> points);
// The same, back to the first point.
void closed_polyline(Bitmap& bitmap, const DashInk& ink, std::span<const Point> points);

}  // namespace trelvo::raster
