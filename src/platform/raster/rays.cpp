#include "platform/raster/rays.h"

namespace trelvo::raster {

namespace {

// A point in the centre stands for the ray to the right.
Offset direction(const EllipseGrid& grid, Point point) {
  const std::int64_t x = 2 * static_cast<std::int64_t>(point.x) - grid.centre_x();
  const std::int64_t y = 2 * static_cast<std::int64_t>(point.y) - grid.centre_y();
  if (x == 0 && y == 0) return {1, 0};
  return {static_cast<double>(x), static_cast<double>(y)};
}

}  // namespace

Rays::Rays(const EllipseGrid& grid, Point start, Point end)
    : start_(direction(grid, start)),
      end_(direction(grid, end)),
      turn_(start_.y * end_.x - start_.x * end_.y),
      opposite_(turn_ == 0 && start_.x * end_.x + start_.y * end_.y < 0) {}

}  // namespace trelvo::raster
