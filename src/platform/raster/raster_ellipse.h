// Ellipses and arcs: work for the visible rows only, however large they are.
#pragma once

#include "platform/raster/ellipse_grid.h"
#include "platform/raster/raster_wide.h"
#include "platform/raster/rays.h"

namespace trelvo::raster {

void fill_ellipse(Bitmap& bitmap, const BrushInk& ink, const EllipseGrid& grid);

// One pixel wide. Dashes begin at the rightmost pixel of the upper half, or at the first ray, and run
// counter-clockwise. The pixels on both rays belong to an arc.
void ellipse(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid);
void arc(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid, Point start, Point end);

// Round ends.
void wide_ellipse(Bitmap& bitmap, const WideInk& ink, const EllipseGrid& grid);
void wide_arc(Bitmap& bitmap, const WideInk& ink, const EllipseGrid& grid, Point start, Point end);

}  // namespace trelvo::raster
