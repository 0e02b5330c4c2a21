#include <array>

#include "platform/raster/raster_ellipse.h"

namespace trelvo::raster {

namespace {

using TwoParts = std::array<Interval, 2>;

// Half the width of an ellipse at a distance from its centre; negative where it is not.
double half_width(double half_axis_x, double half_axis_y, double off) {
  if (off > half_axis_y + slack) return -1;
  return half_axis_x * std::sqrt(std::max(0.0, (half_axis_y - off) * (half_axis_y + off))) / half_axis_y;
}

// What a wide pen covers as it goes round: the outer ellipse without the inner one.
class Ring {
 public:
  Ring(const EllipseGrid& grid, const WideInk& ink)
      : radius_(ink.radius),
        half_axis_x_(static_cast<double>(grid.width() - 1) / 2),
        half_axis_y_(static_cast<double>(grid.height() - 1) / 2),
        origin_{grid.centre_x() >> 1, grid.centre_y() >> 1},
        centre_{static_cast<double>(grid.centre_x() & 1) / 2 + ink.shift,
                static_cast<double>(grid.centre_y() & 1) / 2 + ink.shift} {}

  Origin origin() const { return origin_; }
  double shift_x() const { return centre_.x; }
  double from_centre(std::int64_t y) const { return static_cast<double>(y - origin_.y) - centre_.y; }
  Range row_range() const {
    const double reach = half_axis_y_ + radius_;
    return Interval{centre_.y - reach, centre_.y + reach}.pixels(origin_.y);
  }

  // Left and right part of a row, from the centre.
  TwoParts row(double y) const {
    const double off = std::abs(y);
    const double outer = half_width(half_axis_x_ + radius_, half_axis_y_ + radius_, off);
    if (outer < 0) return {nothing, nothing};
    const bool hollow = half_axis_x_ > radius_ && half_axis_y_ > radius_ && off < half_axis_y_ - radius_;
    if (!hollow) return {Interval{-outer, outer}, nothing};
    const double inner = half_width(half_axis_x_ - radius_, half_axis_y_ - radius_, off);
    return {Interval{-outer, -inner}, Interval{inner, outer}};
  }

  // The pen's centre on a ray, from the origin.
  Offset crossing(Offset ray) const {
    constexpr double thinnest = 1e-6;
    const double scale =
        1 / std::hypot(ray.x / std::max(half_axis_x_, thinnest), ray.y / std::max(half_axis_y_, thinnest));
    return {centre_.x + ray.x * scale, centre_.y + ray.y * scale};
  }

 private:
  double radius_;
  double half_axis_x_, half_axis_y_;
  Origin origin_;
  Offset centre_;  // from the origin
};

// The parts of a row that lie between the rays.
TwoParts between(const Rays& rays, double y) {
  const Interval from_start = rays.left_of_start(y);
  const Interval to_end = rays.right_of_end(y);
  if (rays.convex()) return {from_start.cut(to_end), nothing};
  return {from_start, to_end};
}

void paint_row(Bitmap& bitmap, const WideInk& ink, const Ring& ring, std::int64_t y, const TwoParts& allowed) {
  for (const Interval& part : ring.row(ring.from_centre(y))) {
    for (const Interval& limit : allowed) {
      Interval span = part.cut(limit);
      if (span.right < span.left - slack) continue;
      span.left += ring.shift_x();
      span.right += ring.shift_x();
      fill_columns(bitmap, y, span.pixels(ring.origin().x), ink.pixel);
    }
  }
}

}  // namespace

void wide_ellipse(Bitmap& bitmap, const WideInk& ink, const EllipseGrid& grid) {
  if (grid.empty()) return;
  const Ring ring(grid, ink);
  const Range visible = ring.row_range().cut(rows(bitmap));
  for (std::int64_t y = visible.first; y <= visible.last; ++y) paint_row(bitmap, ink, ring, y, {whole_row, nothing});
}

void wide_arc(Bitmap& bitmap, const WideInk& ink, const EllipseGrid& grid, Point start, Point end) {
  if (grid.empty()) return;
  const Rays rays(grid, start, end);
  if (rays.whole()) {
    wide_ellipse(bitmap, ink, grid);
    return;
  }
  const Ring ring(grid, ink);
  const Range visible = ring.row_range().cut(rows(bitmap));
  for (std::int64_t y = visible.first; y <= visible.last; ++y) {
    paint_row(bitmap, ink, ring, y, between(rays, ring.from_centre(y)));
  }
  for (const Offset ray : {rays.start(), rays.end()}) {
    const Offset place = ring.crossing(ray);
    sweep(bitmap, ring.origin(), place, place, ink.radius, ink.pixel);
  }
}

}  // namespace trelvo::raster
