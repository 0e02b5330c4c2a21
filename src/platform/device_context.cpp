#include "platform/device_context.h"

#include "platform/text.h"

namespace trelvo {

namespace {

std::string number(std::int64_t value) { return std::to_string(value); }

std::string shown(Point p) { return number(p.x) + "," + number(p.y); }

std::string shown(const Pen& pen) {
  return "pen=" + number(pen.style) + "," + number(pen.width) + "," + number(pen.color);
}

std::string shown(const Brush& brush) {
  switch (brush.kind) {
    case Brush::Kind::hatch:
      return "brush=hatch " + number(brush.hatch) + "," + number(brush.color);
    case Brush::Kind::solid:
      return "brush=solid " + number(brush.color);
    case Brush::Kind::pattern:
      return "brush=pattern";
    case Brush::Kind::none:
      break;
  }
  return "brush=none";
}

std::string shown(std::span<const Point> points) {
  std::string text = number(static_cast<std::int64_t>(points.size())) + ":";
  for (const Point& p : points) text += " " + shown(p);
  return text;
}

std::string shown(const Font& font) {
  return "height=" + number(font.height) + " escapement=" + number(font.escapement) + " weight=" + number(font.weight) +
         " italic=" + number(font.italic ? 1 : 0) + " underline=" + number(font.underline ? 1 : 0) +
         " strikeout=" + number(font.strikeout ? 1 : 0) + " face=" + quoted(font.face);
}

std::string shown(const Background& background) {
  return background.opaque ? "background=opaque," + number(background.color) : "background=transparent";
}

}  // namespace

void DeviceContext::Polyline(const Pen& pen, std::span<const Point> points) {
  if (trace) trace("dc.Polyline " + shown(pen) + " " + shown(points));
  paint_polyline(pen, points);
}

void DeviceContext::Polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) {
  if (trace) trace("dc.Polygon " + shown(pen) + " " + shown(brush) + " " + shown(points));
  paint_polygon(pen, brush, points);
}

void DeviceContext::Ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) {
  if (trace) {
    trace("dc.Ellipse " + shown(pen) + " " + shown(brush) + " " + shown(corner1) + " " + shown(corner2));
  }
  paint_ellipse(pen, brush, corner1, corner2);
}

void DeviceContext::Arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) {
  if (trace) {
    trace("dc.Arc " + shown(pen) + " " + shown(corner1) + " " + shown(corner2) + " " + shown(start) + " " + shown(end));
  }
  paint_arc(pen, corner1, corner2, start, end);
}

void DeviceContext::TextOutA(const Font& font, Color color, Point position, const std::string& text) {
  if (trace) {
    trace("dc.TextOut " + shown(font) + " color=" + number(color) + " " + shown(background) + " " + shown(position) +
          " " + quoted(text));
  }
  paint_text(font, color, position, text);
}

}  // namespace trelvo
