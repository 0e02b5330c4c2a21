// The drawing surface of a window, a picture box or the printer: logical coordinates over a device context.
#pragma once

#include <cstdint>
#include <string>

#include "platform/device_context.h"

namespace trelvo {

constexpr int scale_twips = 1;
constexpr int scale_pixels = 3;
constexpr int scale_millimetres = 6;

// Font of the surface itself. The size is in points.
struct SurfaceFont {
  std::string name = "Arial";
  float size = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethru = false;
};

// The public operations write the trace and hand over to the painting ones.
class Surface {
 public:
  virtual ~Surface() = default;

  // Logical place of the top left corner, and logical size; the size follows the device.
  float ScaleLeft = 0;
  float ScaleTop = 0;
  float ScaleWidth = 0;
  float ScaleHeight = 0;
  int ScaleMode = scale_twips;

  std::int16_t DrawWidth = 1;
  std::int32_t DrawStyle = 0;
  Color ForeColor = 0;
  Color BackColor = 0xFFFFFF;
  float CurrentX = 0;
  float CurrentY = 0;
  SurfaceFont font;
  Trace trace;

  // Lengths between units; the device has `dots_per_inch()` pixels an inch.
  float ScaleX(double length, int from, int to) const;
  float ScaleY(double length, int from, int to) const;

  void Cls();
  // Both end points are painted.
  void Line(double x1, double y1, double x2, double y2, Color color);
  void PSet(double x, double y, Color color);
  // At CurrentX, CurrentY, in ForeColor and the surface's font.
  void Print(const std::string& text);
  float TextWidth(const std::string& text);
  float TextHeight(const std::string& text);
  // Pixels of a text in the surface's own font.
  Size GetTextExtentPoint32A(const std::string& text);

  virtual DeviceContext& hDC() = 0;
  virtual double dots_per_inch() const { return 96; }

 protected:
  // Device position of a logical point.
  double device_x(double x) const { return (x - ScaleLeft) * pixels_per_unit(); }
  double device_y(double y) const { return (y - ScaleTop) * pixels_per_unit(); }
  double pixels_per_unit() const;
  Font device_font() const;

  virtual void paint_cls() = 0;
  virtual void paint_line(double x1, double y1, double x2, double y2, Color color) = 0;
  virtual void paint_pset(double x, double y, Color color) = 0;
};

}  // namespace trelvo
