#include "platform/raster/raster_text.h"

#include <array>
#include <cmath>
#include <numbers>

#include "platform/numbers.h"
#include "platform/raster/interval.h"
#include "platform/raster/raster_fill.h"

namespace trelvo::raster {

namespace {

// Larger letters are asked for at a smaller size and magnified, so that no shape takes more memory than this.
constexpr double largest_side = 8000;
constexpr double largest_area = 16.0 * 1024 * 1024;

// The turned cell of a text: its corners from the reference point, clockwise from the top left one.
class Cell {
 public:
  Cell(Size size, std::int32_t escapement) : margin_(size.height) {
    const double angle = escapement / 1800.0 * std::numbers::pi;
    const Offset along{size.width * std::cos(angle), -size.width * std::sin(angle)};
    const Offset down{size.height * std::sin(angle), size.height * std::cos(angle)};
    corners_ = {Offset{0, 0}, along, {along.x + down.x, along.y + down.y}, down};
    for (const Offset& corner : corners_) {
      across_.hold({corner.x, corner.x});
      down_.hold({corner.y, corner.y});
    }
  }

  // Letters may lean out of their cell by less than its height.
  bool may_show(const Bitmap& bitmap, Point position) const {
    const Range x = Interval{across_.left - margin_, across_.right + margin_}.pixels(position.x);
    const Range y = Interval{down_.left - margin_, down_.right + margin_}.pixels(position.y);
    return !x.cut(columns(bitmap)).empty() && !y.cut(rows(bitmap)).empty();
  }

  // How many times it is larger than a shape may be.
  double excess() const {
    const double width = across_.right - across_.left;
    const double height = down_.right - down_.left;
    return std::max({width / largest_side, height / largest_side, std::sqrt(width * height / largest_area)});
  }

  std::array<Point, 4> outline(Point position) const {
    std::array<Point, 4> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
      points[i] = {round_clamped(position.x + corners_[i].x), round_clamped(position.y + corners_[i].y)};
    }
    return points;
  }

 private:
  std::array<Offset, 4> corners_;
  Interval across_, down_;
  double margin_;
};

std::uint32_t blended_channel(std::uint32_t below, std::uint32_t above, std::uint32_t coverage, int shift) {
  const std::uint32_t old_part = (below >> shift & 0xFFU) * (255 - coverage);
  const std::uint32_t new_part = (above >> shift & 0xFFU) * coverage;
  return (old_part + new_part + 127) / 255 << shift;
}

void blend(std::uint32_t& target, std::uint32_t pixel, std::uint32_t coverage) {
  if (coverage == 0) return;
  target = coverage == 255
               ? pixel
               : 0xFF000000U | blended_channel(target, pixel, coverage, 16) |
                     blended_channel(target, pixel, coverage, 8) | blended_channel(target, pixel, coverage, 0);
}

bool usable(const GlyphMask& mask) {
  return mask.width > 0 && mask.height > 0 &&
         mask.coverage.size() >= static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height);
}

std::uint32_t coverage_at(const GlyphMask& mask, std::int64_t x, std::int64_t y) {
  if (x < 0 || y < 0 || x >= mask.width || y >= mask.height) return 0;
  return mask.coverage[static_cast<std::size_t>(y * mask.width + x)];
}

void put_mask(Bitmap& bitmap, const GlyphMask& mask, Point position, std::uint32_t pixel) {
  const std::int64_t left = static_cast<std::int64_t>(position.x) + mask.left;
  const std::int64_t top = static_cast<std::int64_t>(position.y) + mask.top;
  const Range across = Range{left, left + mask.width - 1}.cut(columns(bitmap));
  const Range down = Range{top, top + mask.height - 1}.cut(rows(bitmap));
  for (std::int64_t y = down.first; y <= down.last; ++y) {
    std::uint32_t* row = row_of(bitmap, y);
    for (std::int64_t x = across.first; x <= across.last; ++x) {
      blend(row[x], pixel, coverage_at(mask, x - left, y - top));
    }
  }
}

// Between the four nearest places of the mask.
std::uint32_t smooth_coverage(const GlyphMask& mask, double x, double y) {
  const double whole_x = std::floor(x);
  const double whole_y = std::floor(y);
  const auto column = static_cast<std::int64_t>(whole_x);
  const auto row = static_cast<std::int64_t>(whole_y);
  const double right = x - whole_x;
  const double below = y - whole_y;
  const double upper = coverage_at(mask, column, row) * (1 - right) + coverage_at(mask, column + 1, row) * right;
  const double lower =
      coverage_at(mask, column, row + 1) * (1 - right) + coverage_at(mask, column + 1, row + 1) * right;
  return static_cast<std::uint32_t>(std::lrint(upper * (1 - below) + lower * below));
}

void put_magnified(Bitmap& bitmap, const GlyphMask& mask, Point position, double factor, std::uint32_t pixel) {
  const Range across =
      Interval{(mask.left - 1) * factor, (mask.left + mask.width + 1) * factor}.pixels(position.x).cut(columns(bitmap));
  const Range down =
      Interval{(mask.top - 1) * factor, (mask.top + mask.height + 1) * factor}.pixels(position.y).cut(rows(bitmap));
  for (std::int64_t y = down.first; y <= down.last; ++y) {
    std::uint32_t* row = row_of(bitmap, y);
    const double mask_y = (static_cast<double>(y - position.y) + 0.5) / factor - 0.5 - mask.top;
    for (std::int64_t x = across.first; x <= across.last; ++x) {
      const double mask_x = (static_cast<double>(x - position.x) + 0.5) / factor - 0.5 - mask.left;
      blend(row[x], pixel, smooth_coverage(mask, mask_x, mask_y));
    }
  }
}

// The font at a size whose shapes are small enough.
Font reduced(const Font& font, double excess) {
  Font smaller = font;
  smaller.height = round_clamped(font.height / excess);
  if (smaller.height == 0) smaller.height = font.height < 0 ? -1 : 1;
  return smaller;
}

}  // namespace

void draw_text(Bitmap& bitmap, FontService& fonts, const TextStyle& style, Point position, const std::string& text) {
  if (text.empty() || columns(bitmap).empty()) return;
  const Cell cell(fonts.extent(style.font, text), style.font.escapement);
  if (!cell.may_show(bitmap, position)) return;
  if (style.background.opaque) {
    const BrushInk paper({Brush::Kind::solid, 0, style.background.color}, {});
    fill_polygon(bitmap, paper, cell.outline(position));
  }

  const double excess = cell.excess();
  const Font asked = excess > 1 && style.font.height != 0 ? reduced(style.font, excess) : style.font;
  const GlyphMask mask = fonts.mask(asked, text);
  if (!usable(mask)) return;
  if (asked.height == style.font.height) {
    put_mask(bitmap, mask, position, pixel_of(style.color));
  } else {
    put_magnified(bitmap, mask, position, static_cast<double>(style.font.height) / asked.height, pixel_of(style.color));
  }
}

}  // namespace trelvo::raster
