#include "platform/raster/ellipse_grid.h"

#include <cmath>
#include <cstdlib>

namespace trelvo::raster {

namespace {

std::int64_t sum(std::int32_t a, std::int32_t b) { return static_cast<std::int64_t>(a) + b; }
std::int64_t apart(std::int32_t a, std::int32_t b) { return std::abs(static_cast<std::int64_t>(a) - b); }

}  // namespace

EllipseGrid::EllipseGrid(Point corner1, Point corner2)
    : width_(apart(corner1.x, corner2.x)),
      height_(apart(corner1.y, corner2.y)),
      centre_x_(sum(corner1.x, corner2.x) - 1),
      centre_y_(sum(corner1.y, corner2.y) - 1) {
  if (empty()) return;
  turn_ = find_turn();
  turn_column_ = widest(turn_);
  quarter_ = quarter_place(half_rows() - 1, nearest_column()) + 1;
}

std::int64_t EllipseGrid::half_row_of(std::int64_t y) const {
  return (std::abs(2 * y - centre_y_) - nearest_row()) / 2;
}

// A pixel is inside if its centre is. Very flat ellipses would not reach the sides of their box that way: the middle
// row and the middle column always do.
std::int64_t EllipseGrid::widest(std::int64_t half_row) const {
  if (half_row == 0) return width_ - 1;
  const double high = static_cast<double>(height_);
  const double off = static_cast<double>(2 * half_row + nearest_row());
  const double exact = static_cast<double>(width_) * std::sqrt((high - off) * (high + off)) / high;
  const auto whole = static_cast<std::int64_t>(exact);
  return std::max(whole - ((whole ^ nearest_column()) & 1), nearest_column());
}

Range EllipseGrid::inside(std::int64_t y) const {
  const std::int64_t half = widest(half_row_of(y));
  return {left(half), right(half)};
}

EllipseGrid::Run EllipseGrid::run(std::int64_t y) const {
  const std::int64_t half_row = half_row_of(y);
  const std::int64_t outer = widest(half_row);
  if (half_row == half_rows() - 1) return {nearest_column(), outer};
  return {std::min(outer, widest(half_row + 1) + 2), outer};
}

// Where the outline leans by 45 degrees. The rows about that place may fall either way.
std::int64_t EllipseGrid::find_turn() const {
  const double high = static_cast<double>(height_);
  const double steepest_end = high * (high / std::hypot(high, static_cast<double>(width_)));
  const std::int64_t last = half_rows() - 1;
  const auto near_turn = static_cast<std::int64_t>((steepest_end - static_cast<double>(nearest_row())) / 2);
  std::int64_t row = std::clamp<std::int64_t>(near_turn - 1, 0, last);
  for (int i = 0; i < 3 && row < last && widest(row) - widest(row + 1) <= 2; ++i) ++row;
  return row;
}

std::int64_t EllipseGrid::quarter_place(std::int64_t half_row, std::int64_t half_pixels) const {
  return half_row < turn_ ? half_row : turn_ + (turn_column_ - half_pixels) / 2;
}

std::int64_t EllipseGrid::whole_place(std::int64_t on_quarter, bool at_left, bool below) const {
  const std::int64_t half = 2 * quarter_ - odd_width();  // the upper half
  if (!below) return at_left ? half - 1 - on_quarter : on_quarter;
  if (at_left) return half + on_quarter - odd_height();
  return (2 * half - 1 - on_quarter - odd_height()) % length();
}

std::int64_t EllipseGrid::place_of(std::int64_t x, std::int64_t y) const {
  const std::int64_t across = 2 * x - centre_x_;
  const std::int64_t down = 2 * y - centre_y_;
  return whole_place(quarter_place(half_row_of(y), std::abs(across)), across<0, down> 0);
}

std::int64_t EllipseGrid::place_towards(Point point) const {
  const double across = static_cast<double>(2 * static_cast<std::int64_t>(point.x) - centre_x_);
  const double down = static_cast<double>(2 * static_cast<std::int64_t>(point.y) - centre_y_);
  if (across == 0 && down == 0) return 0;
  const double scale = 1 / std::hypot(across / static_cast<double>(width_), down / static_cast<double>(height_));
  const double row = (std::abs(down) * scale - static_cast<double>(nearest_row())) / 2;
  const double column = (std::abs(across) * scale - static_cast<double>(nearest_column())) / 2;

  const auto half_row = static_cast<std::int64_t>(std::max(0.0, std::nearbyint(row)));
  std::int64_t on_quarter = half_row;
  if (half_row >= turn_) {
    const auto half_pixels = 2 * static_cast<std::int64_t>(std::max(0.0, std::nearbyint(column))) + nearest_column();
    on_quarter = std::clamp(turn_ + (turn_column_ - half_pixels) / 2, turn_, quarter_ - 1);
  }
  return whole_place(on_quarter, across<0, down> 0);
}

}  // namespace trelvo::raster
