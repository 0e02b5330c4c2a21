#include "platform/raster/pixels.h"

#include <array>

namespace trelvo::raster {

namespace {

using HatchRows = std::array<std::uint8_t, 8>;

// First row first, the most significant bit leftmost.
constexpr std::array<HatchRows, 6> hatches{{
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},
    {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08},
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},
}};

Brush::Kind painted_kind(const Brush& brush) {
  if (brush.kind == Brush::Kind::solid) return brush.kind;
  const bool known = brush.hatch >= 0 && brush.hatch < static_cast<int>(hatches.size());
  return brush.kind == Brush::Kind::hatch && known ? brush.kind : Brush::Kind::none;
}

}  // namespace

BrushInk::BrushInk(const Brush& brush, const Background& background)
    : kind_(painted_kind(brush)),
      hatch_(brush.hatch),
      on_(pixel_of(brush.color)),
      off_(pixel_of(background.color)),
      paints_gaps_(background.opaque) {}

void BrushInk::fill(Bitmap& bitmap, std::int64_t y, const Range& wanted) const {
  if (kind_ == Brush::Kind::solid) {
    fill_columns(bitmap, y, wanted, on_);
    return;
  }
  const Range visible = wanted.cut(columns(bitmap));
  const unsigned bits = hatches[static_cast<std::size_t>(hatch_)][static_cast<std::size_t>(y & 7)];
  std::uint32_t* row = row_of(bitmap, y);
  for (std::int64_t x = visible.first; x <= visible.last; ++x) {
    if ((bits << (x & 7) & 0x80U) != 0) {
      row[x] = on_;
    } else if (paints_gaps_) {
      row[x] = off_;
    }
  }
}

}  // namespace trelvo::raster
