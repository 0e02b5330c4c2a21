// Writing to a bitmap: points and spans cut to its edges, in one colour, in a dash pattern or in a brush.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "platform/graphics.h"

namespace trelvo::raster {

inline std::uint32_t* row_of(Bitmap& bitmap, std::int64_t y) {
  return bitmap.pixels.data() + static_cast<std::ptrdiff_t>(y) * bitmap.width;
}

// First and last row, or column; none if the first comes after the last.
struct Range {
  std::int64_t first = 0;
  std::int64_t last = -1;

  bool empty() const { return first > last; }
  Range cut(std::int64_t low, std::int64_t high) const { return {std::max(first, low), std::min(last, high)}; }
  Range cut(const Range& other) const { return cut(other.first, other.last); }
};

inline Range rows(const Bitmap& bitmap) { return {0, bitmap.height - 1}; }
inline Range columns(const Bitmap& bitmap) { return {0, bitmap.width - 1}; }

// The row lies in the bitmap, the columns need not.
inline void fill_columns(Bitmap& bitmap, std::int64_t y, const Range& wanted, std::uint32_t pixel) {
  const Range visible = wanted.cut(columns(bitmap));
  if (visible.empty()) return;
  std::uint32_t* row = row_of(bitmap, y);
  std::fill(row + visible.first, row + visible.last + 1, pixel);
}

// A pen of one pixel: its dashes as 24 bits, all of them set for a solid line, and what shows in the gaps.
class DashInk {
 public:
  static constexpr int period = 24;

  // Solid.
  explicit DashInk(std::uint32_t pixel) : on_(pixel), off_(pixel), paints_gaps_(false), mask_(all) {}
  DashInk(const Pen& pen, const Background& background)
      : on_(pixel_of(pen.color)),
        off_(pixel_of(background.color)),
        paints_gaps_(background.opaque),
        mask_(mask_of(pen.style)) {}

  bool solid() const { return mask_ == all; }
  std::uint32_t color() const { return on_; }
  // `phase` is less than the period.
  void put(std::uint32_t& target, int phase) const {
    if ((mask_ >> phase & 1U) != 0) {
      target = on_;
    } else if (paints_gaps_) {
      target = off_;
    }
  }

 private:
  static constexpr std::uint32_t all = 0xFFFFFF;
  // Every pattern's length divides the period: 18 6, 3 3, 9 6 3 6, 9 3 3 3 3 3. The first pixel is the lowest bit.
  static constexpr std::uint32_t mask_of(int style) {
    switch (style) {
      case 1:
        return 0x03FFFF;
      case 2:
        return 0x1C71C7;
      case 3:
        return 0x0381FF;
      case 4:
        return 0x1C71FF;
      default:
        return all;
    }
  }

  std::uint32_t on_;
  std::uint32_t off_;
  bool paints_gaps_;
  std::uint32_t mask_;
};

constexpr int pen_style_nothing = 5;

inline bool paints(const Pen& pen) { return pen.style != pen_style_nothing; }
inline bool is_wide(const Pen& pen) { return pen.width > 1; }

class BrushInk {
 public:
  BrushInk(const Brush& brush, const Background& background);

  bool paints() const { return kind_ != Brush::Kind::none; }
  // The row lies in the bitmap, the columns need not.
  void fill(Bitmap& bitmap, std::int64_t y, const Range& wanted) const;

 private:
  Brush::Kind kind_;
  int hatch_;
  std::uint32_t on_;
  std::uint32_t off_;
  bool paints_gaps_;
};

}  // namespace trelvo::raster
