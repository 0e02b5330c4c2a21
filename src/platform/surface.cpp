#include "platform/surface.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/numbers.h"

namespace trelvo {

namespace {

constexpr double twips_per_inch = 1440;
constexpr double millimetres_per_inch = 25.4;
constexpr double points_per_inch = 72;
constexpr std::int32_t bold_weight = 700;

double units_per_inch(int mode, double dots) {
  if (mode == scale_pixels) return dots;
  if (mode == scale_millimetres) return millimetres_per_inch;
  return twips_per_inch;
}

// Texts of the trace. Apart from the operations, which are to be quick while nothing is traced.
std::string place(double x, double y) { return shortest_text(x) + "," + shortest_text(y); }

[[gnu::noinline]] void trace_line(const Surface& surface, double x1, double y1, double x2, double y2, Color color) {
  surface.trace("Line " + place(x1, y1) + ' ' + place(x2, y2) + " color=" + std::to_string(color) +
                " DrawWidth=" + std::to_string(surface.DrawWidth) + " DrawStyle=" + std::to_string(surface.DrawStyle));
}

[[gnu::noinline]] void trace_pset(const Surface& surface, double x, double y, Color color) {
  surface.trace("PSet " + place(x, y) + " color=" + std::to_string(color));
}

}  // namespace

float Surface::ScaleX(double length, int from, int to) const {
  if (from == to) return static_cast<float>(length);
  const double dots = dots_per_inch();
  return static_cast<float>(length * units_per_inch(to, dots) / units_per_inch(from, dots));
}

float Surface::ScaleY(double length, int from, int to) const { return ScaleX(length, from, to); }

double Surface::pixels_per_unit() const {
  const double dots = dots_per_inch();
  return dots / units_per_inch(ScaleMode, dots);
}

Font Surface::device_font() const {
  Font result;
  result.face = font.name;
  // A size may be anything that a file holds; the height is negated here and there.
  constexpr std::int32_t tallest = std::numeric_limits<std::int32_t>::max();
  result.height = -std::max(round_clamped(font.size * dots_per_inch() / points_per_inch), -tallest);
  if (result.height == 0) result.height = -1;
  result.weight = font.bold ? bold_weight : 0;
  result.italic = font.italic;
  result.underline = font.underline;
  result.strikeout = font.strikethru;
  return result;
}

void Surface::Cls() {
  if (trace) trace("Cls");
  paint_cls();
}

void Surface::Line(double x1, double y1, double x2, double y2, Color color) {
  if (trace) trace_line(*this, x1, y1, x2, y2, color);
  paint_line(x1, y1, x2, y2, color);
}

void Surface::PSet(double x, double y, Color color) {
  if (trace) trace_pset(*this, x, y, color);
  paint_pset(x, y, color);
}

void Surface::Print(const std::string& text) {
  hDC().TextOutA(device_font(), ForeColor, {round_clamped(device_x(CurrentX)), round_clamped(device_y(CurrentY))},
                 text);
}

Size Surface::GetTextExtentPoint32A(const std::string& text) {
  return hDC().GetTextExtentPoint32A(device_font(), text);
}

float Surface::TextWidth(const std::string& text) {
  return ScaleX(GetTextExtentPoint32A(text).width, scale_pixels, ScaleMode);
}

float Surface::TextHeight(const std::string& text) {
  return ScaleY(GetTextExtentPoint32A(text).height, scale_pixels, ScaleMode);
}

}  // namespace trelvo
