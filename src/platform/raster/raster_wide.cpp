#include "platform/raster/raster_wide.h"

#include <cmath>

namespace trelvo::raster {

namespace {

// The disc, the straight band and the disc that make up the path, cut by a row.
class Path {
 public:
  Path(Offset from, Offset to, double radius)
      : from_(from),
        to_(to),
        dx_(to.x - from.x),
        dy_(to.y - from.y),
        square_(dx_ * dx_ + dy_ * dy_),
        reach_(radius * std::sqrt(square_)),
        across_(dy_ == 0 ? 0 : 1 / dy_),
        along_(dx_ == 0 ? 0 : 1 / dx_),
        radius_(radius) {}

  Interval row(double y) const {
    Interval result;
    result.hold(disc(from_, y));
    if (square_ > 0) {
      result.hold(disc(to_, y));
      result.hold(band(y));
    }
    return result;
  }

 private:
  Interval disc(Offset centre, double y) const {
    const double off = std::abs(y - centre.y);
    if (off > radius_ + slack) return nothing;
    const double half = std::sqrt(std::max(0.0, (radius_ - off) * (radius_ + off)));
    return {centre.x - half, centre.x + half};
  }

  // The x with low <= factor * x <= high, `inverse` being that of the factor, or 0.
  static Interval quick_solution(double inverse, double low, double high) {
    if (inverse == 0) return low <= 0 && high >= 0 ? whole_row : nothing;
    return inverse > 0 ? Interval{low * inverse, high * inverse} : Interval{high * inverse, low * inverse};
  }

  Interval band(double y) const {
    const double off = y - from_.y;
    const Interval near_line = quick_solution(across_, dx_ * off - reach_, dx_ * off + reach_);
    const Interval between_ends = quick_solution(along_, -dy_ * off, square_ - dy_ * off);
    const Interval both = near_line.cut(between_ends);
    return both.empty() ? nothing : Interval{both.left + from_.x, both.right + from_.x};
  }

  Offset from_, to_;
  double dx_, dy_;
  double square_;  // of the length
  double reach_;   // radius times length
  double across_, along_;
  double radius_;
};

void wide_segment(Bitmap& bitmap, const WideInk& ink, Point from, Point to) {
  const double dx = static_cast<double>(to.x) - from.x;
  const double dy = static_cast<double>(to.y) - from.y;
  sweep(bitmap, {from.x, from.y}, {ink.shift, ink.shift}, {ink.shift + dx, ink.shift + dy}, ink.radius, ink.pixel);
}

}  // namespace

void sweep(Bitmap& bitmap, Origin origin, Offset from, Offset to, double radius, std::uint32_t pixel) {
  const Interval across{std::min(from.x, to.x) - radius, std::max(from.x, to.x) + radius};
  const Interval down{std::min(from.y, to.y) - radius, std::max(from.y, to.y) + radius};
  if (across.pixels(origin.x).cut(columns(bitmap)).empty()) return;
  const Range visible = down.pixels(origin.y).cut(rows(bitmap));
  const Path path(from, to, radius);
  for (std::int64_t y = visible.first; y <= visible.last; ++y) {
    fill_columns(bitmap, y, path.row(static_cast<double>(y - origin.y)).pixels(origin.x), pixel);
  }
}

void wide_line(Bitmap& bitmap, const WideInk& ink, Point from, Point to) { wide_segment(bitmap, ink, from, to); }

void wide_polyline(Bitmap& bitmap, const WideInk& ink, std::span<const Point> points) {
  for (std::size_t i = 1; i < points.size(); ++i) wide_segment(bitmap, ink, points[i - 1], points[i]);
}

void wide_closed_polyline(Bitmap& bitmap, const WideInk& ink, std::span<const Point> points) {
  if (points.size() < 2) return;
  wide_polyline(bitmap, ink, points);
  wide_segment(bitmap, ink, points.back(), points.front());
}

}  // namespace trelvo::raster
