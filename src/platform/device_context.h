// The device context: figures in integer device coordinates, each with the pen, brush or font it is drawn with.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "platform/graphics.h"

namespace trelvo {

// Receives one line of text for each call, such as "dc.Polyline pen=0,1,0 3: 10,10 20,20 30,10".
using Trace = std::function<void(const std::string&)>;

// The public operations write the trace and hand over to the painting ones.
class DeviceContext {
 public:
  virtual ~DeviceContext() = default;

  void Polyline(const Pen& pen, std::span<const Point> points);
  void Polygon(const Pen& pen, const Brush& brush, std::span<const Point> points);
  void Ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2);
  // Counter-clockwise as seen, from the ray through `start` to the ray through `end`.
  void Arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end);
  void TextOutA(const Font& font, Color color, Point position, const std::string& text);
  virtual Size GetTextExtentPoint32A(const Font& font, const std::string& text) = 0;

  Background background;
  Trace trace;

 protected:
  virtual void paint_polyline(const Pen& pen, std::span<const Point> points) = 0;
  virtual void paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) = 0;
  virtual void paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) = 0;
  virtual void paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) = 0;
  virtual void paint_text(const Font& font, Color color, Point position, const std::string& text) = 0;
};

}  // namespace trelvo
