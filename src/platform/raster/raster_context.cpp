#include "platform/raster/raster_context.h"

#include "platform/raster/figures.h"
#include "platform/raster/raster_text.h"

namespace trelvo {

Size RasterContext::GetTextExtentPoint32A(const Font& font, const std::string& text) {
  return surface_.fonts_.extent(font, text);
}

void RasterContext::paint_polyline(const Pen& pen, std::span<const Point> points) {
  raster::draw_polyline(surface_.target(), pen, background, points);
}

void RasterContext::paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) {
  raster::draw_polygon(surface_.target(), pen, brush, background, points);
}

void RasterContext::paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) {
  raster::draw_ellipse(surface_.target(), pen, brush, background, corner1, corner2);
}

void RasterContext::paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) {
  raster::draw_arc(surface_.target(), pen, background, corner1, corner2, start, end);
}

void RasterContext::paint_text(const Font& font, Color color, Point position, const std::string& text) {
  raster::draw_text(surface_.target(), surface_.fonts_, {font, color, background}, position, text);
}

}  // namespace trelvo
