// The device context of a surface in memory.
#pragma once

#include "platform/raster/raster_surface.h"

namespace trelvo {

class RasterContext : public DeviceContext {
 public:
  explicit RasterContext(RasterSurface& surface) : surface_(surface) {}

  Size GetTextExtentPoint32A(const Font& font, const std::string& text) override;

 protected:
  void paint_polyline(const Pen& pen, std::span<const Point> points) override;
  void paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) override;
  void paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) override;
  void paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) override;
  void paint_text(const Font& font, Color color, Point position, const std::string& text) override;

 private:
  RasterSurface& surface_;
};

}  // namespace trelvo
