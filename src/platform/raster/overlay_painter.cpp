#include "platform/raster/overlay_painter.h"

#include <array>
#include <cmath>

#include "platform/numbers.h"
#include "platform/raster/far_line.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

constexpr int shape_circle = 3;

double device_x(const Surface& surface, double x) {
  return surface.ScaleX(x - surface.ScaleLeft, surface.ScaleMode, scale_pixels);
}

double device_y(const Surface& surface, double y) {
  return surface.ScaleY(y - surface.ScaleTop, surface.ScaleMode, scale_pixels);
}

// Border styles are pen styles one higher, the transparent one in front.
Pen border_pen(int style, int width, Color color) { return {style <= 0 ? 5 : style - 1, width, color}; }

Brush fill_brush(int style, Color color) {
  if (style == 0) return {Brush::Kind::solid, 0, color};
  if (style >= 2) return {Brush::Kind::hatch, style - 2, color};
  return {};
}

void paint(Bitmap& bitmap, const Surface& surface, const OverlayLine& line) {
  const raster::FarLine device{device_x(surface, line.X1), device_y(surface, line.Y1), device_x(surface, line.X2),
                               device_y(surface, line.Y2)};
  const Pen pen = border_pen(line.BorderStyle, line.BorderWidth, line.BorderColor);
  if (const auto part = raster::reachable_part(device)) raster::draw_line(bitmap, pen, {}, part->from, part->to);
}

// Right and bottom side left out.
struct Box {
  Point corner1, corner2;
};

// At least one pixel, so that a shape without an extent still shows.
Box device_box(const Surface& surface, const OverlayShape& shape) {
  const double left = shape.Left;
  const double top = shape.Top;
  Box box{{round_clamped(device_x(surface, left)), round_clamped(device_y(surface, top))},
          {round_clamped(device_x(surface, left + shape.Width)), round_clamped(device_y(surface, top + shape.Height))}};
  if (box.corner2.x <= box.corner1.x) box.corner2.x = round_clamped(box.corner1.x + 1.0);
  if (box.corner2.y <= box.corner1.y) box.corner2.y = round_clamped(box.corner1.y + 1.0);
  return box;
}

// The largest one, centred.
Box square_in(const Box& box) {
  const std::int64_t width = static_cast<std::int64_t>(box.corner2.x) - box.corner1.x;
  const std::int64_t height = static_cast<std::int64_t>(box.corner2.y) - box.corner1.y;
  const std::int64_t side = std::min(width, height);
  const std::int64_t left = box.corner1.x + (width - side) / 2;
  const std::int64_t top = box.corner1.y + (height - side) / 2;
  return {{static_cast<std::int32_t>(left), static_cast<std::int32_t>(top)},
          {static_cast<std::int32_t>(left + side), static_cast<std::int32_t>(top + side)}};
}

void paint(Bitmap& bitmap, const Surface& surface, const OverlayShape& shape) {
  const Pen pen = border_pen(shape.BorderStyle, shape.BorderWidth, shape.BorderColor);
  const Brush brush = fill_brush(shape.FillStyle, shape.FillColor);
  const Box box = device_box(surface, shape);
  if (shape.Shape == shape_circle) {
    const Box square = square_in(box);
    raster::draw_ellipse(bitmap, pen, brush, {}, square.corner1, square.corner2);
    return;
  }
  const Point last{box.corner2.x - 1, box.corner2.y - 1};
  const std::array<Point, 4> corners{box.corner1, Point{last.x, box.corner1.y}, last, Point{box.corner1.x, last.y}};
  raster::draw_polygon(bitmap, pen, brush, {}, corners);
}

}  // namespace

void paint_overlays(Bitmap& bitmap, const Surface& surface, std::span<const OverlayLine* const> lines,
                    std::span<const OverlayShape* const> shapes) {
  for (const OverlayShape* shape : shapes) {
    if (shape->Visible) paint(bitmap, surface, *shape);
  }
  for (const OverlayLine* line : lines) {
    if (line->Visible) paint(bitmap, surface, *line);
  }
}

}  // namespace trelvo
