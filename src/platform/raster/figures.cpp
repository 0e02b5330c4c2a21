#include "platform/raster/figures.h"

#include "platform/raster/raster_ellipse.h"
#include "platform/raster/raster_fill.h"
#include "platform/raster/raster_line.h"
#include "platform/raster/raster_wide.h"

namespace trelvo::raster {

void draw_line(Bitmap& bitmap, const Pen& pen, const Background& background, Point from, Point to) {
  if (!paints(pen)) return;
  if (is_wide(pen)) {
    wide_line(bitmap, WideInk(pen), from, to);
  } else {
    line(bitmap, DashInk(pen, background), from, to);
  }
}

void draw_polyline(Bitmap& bitmap, const Pen& pen, const Background& background, std::span<const Point> points) {
  if (!paints(pen)) return;
  if (is_wide(pen)) {
    wide_polyline(bitmap, WideInk(pen), points);
  } else {
    polyline(bitmap, DashInk(pen, background), points);
  }
}

void draw_polygon(Bitmap& bitmap, const Pen& pen, const Brush& brush, const Background& background,
                  std::span<const Point> points) {
  fill_polygon(bitmap, BrushInk(brush, background), points);
  if (!paints(pen)) return;
  if (is_wide(pen)) {
    wide_closed_polyline(bitmap, WideInk(pen), points);
  } else {
    closed_polyline(bitmap, DashInk(pen, background), points);
  }
}

void draw_ellipse(Bitmap& bitmap, const Pen& pen, const Brush& brush, const Background& background, Point corner1,
                  Point corner2) {
  const EllipseGrid grid(corner1, corner2);
  fill_ellipse(bitmap, BrushInk(brush, background), grid);
  if (!paints(pen)) return;
  if (is_wide(pen)) {
    wide_ellipse(bitmap, WideInk(pen), grid);
  } else {
    ellipse(bitmap, DashInk(pen, background), grid);
  }
}

void draw_arc(Bitmap& bitmap, const Pen& pen, const Background& background, Point corner1, Point corner2, Point start,
              Point end) {
  if (!paints(pen)) return;
  const EllipseGrid grid(corner1, corner2);
  if (is_wide(pen)) {
    wide_arc(bitmap, WideInk(pen), grid, start, end);
  } else {
    arc(bitmap, DashInk(pen, background), grid, start, end);
  }
}

}  // namespace trelvo::raster
