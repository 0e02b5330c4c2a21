// Plain types of the drawing surface: colours, points, pens, brushes, fonts and bitmaps.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace trelvo {

// 24 bits, red in the low byte.
using Color = std::int32_t;

constexpr Color rgb(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }

// Device coordinates, in pixels.
struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

// Style 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot, 5 nothing. Width in pixels.
struct Pen {
  std::int32_t style = 0;
  std::int32_t width = 1;
  Color color = 0;
};

struct Brush {
  enum class Kind { none, hatch, solid, pattern };
  Kind kind = Kind::none;
  int hatch = 0;  // 0 to 5
  Color color = 0;
};

// What shows in the gaps of dashes and hatches and behind text.
struct Background {
  bool opaque = false;
  Color color = 0;
};

// A positive height is the cell height, a negative one the character height, both in pixels.
// The escapement is in tenths of a degree, counter-clockwise.
struct Font {
  std::string face;
  std::int32_t height = 0;
  std::int32_t escapement = 0;
  std::int32_t weight = 0;
  bool italic = false;
  bool underline = false;
  bool strikeout = false;
  bool operator==(const Font&) const = default;
};

// Rows from the top, each pixel 0xFFRRGGBB.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

constexpr std::uint32_t pixel_of(Color color) {
  const auto c = static_cast<std::uint32_t>(color);
  return 0xFF000000U | ((c & 0xFFU) << 16) | (c & 0xFF00U) | ((c >> 16) & 0xFFU);
}

// A text as coverage, 0 to 255 a pixel, placed relative to its reference point.
struct GlyphMask {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> coverage;
};

// Letters come from the desktop; the raster surface only asks for their shapes.
class FontService {
 public:
  virtual ~FontService() = default;
  // Width and height of the unrotated cell, in pixels.
  virtual Size extent(const Font& font, const std::string& text) = 0;
  // The text turned by the escapement about the top left corner of its cell, which is (0, 0).
  virtual GlyphMask mask(const Font& font, const std::string& text) = 0;
};

}  // namespace trelvo
