// Figures with any pen and brush, in a bitmap: fill first, then the outline.
#pragma once

#include <span>

#include "platform/graphics.h"

namespace trelvo::raster {

// Both end points are painted.
void draw_line(Bitmap& bitmap, const Pen& pen, const Background& background, Point from, Point to);
void draw_polyline(Bitmap& bitmap, const Pen& pen, const Background& background, std::span<const Point> points);
void draw_polygon(Bitmap& bitmap, const Pen& pen, const Brush& brush, const Background& background,
                  std::span<const Point> points);
void draw_ellipse(Bitmap& bitmap, const Pen& pen, const Brush& brush, const Background& background, Point corner1,
                  Point corner2);
void draw_arc(Bitmap& bitmap, const Pen& pen, const Background& background, Point corner1, Point corner2, Point start,
              Point end);

}  // namespace trelvo::raster
