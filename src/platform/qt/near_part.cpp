#include "platform/qt/near_part.h"

#include <algorithm>
#include <cmath>

namespace trelvo {

namespace {

bool is_near(QPointF p) { return std::abs(p.x()) <= nearness && std::abs(p.y()) <= nearness; }

// One of the four bounds, by what of a point lies beyond it.
struct Bound {
  bool upright;
  double sign;
  double beyond(QPointF p) const { return sign * (upright ? p.x() : p.y()) - nearness; }
};
constexpr Bound bounds[] = {{true, 1}, {true, -1}, {false, 1}, {false, -1}};

QPolygonF cut(const QPolygonF& polygon, const Bound& bound) {
  QPolygonF result;
  QPointF from = polygon.last();
  double beyond_from = bound.beyond(from);
  for (const QPointF& to : polygon) {
    const double beyond_to = bound.beyond(to);
    if ((beyond_from > 0) != (beyond_to > 0)) {
      result.append(from + (to - from) * (beyond_from / (beyond_from - beyond_to)));
    }
    if (beyond_to <= 0) result.append(to);
    from = to;
    beyond_from = beyond_to;
  }
  return result;
}

}  // namespace

bool is_near(const QPolygonF& points) {
  return std::all_of(points.begin(), points.end(), [](QPointF p) { return is_near(p); });
}

std::optional<QLineF> near_part(const QLineF& line) {
  if (is_near(line.p1()) && is_near(line.p2())) return line;
  double first = 0;
  double last = 1;
  for (const Bound& bound : bounds) {
    const double start = bound.beyond(line.p1());
    const double end = bound.beyond(line.p2());
    if (!std::isfinite(start) || !std::isfinite(end) || (start > 0 && end > 0)) return std::nullopt;
    if (start > 0) first = std::max(first, start / (start - end));
    if (end > 0) last = std::min(last, start / (start - end));
  }
  if (first > last) return std::nullopt;
  return QLineF(line.pointAt(first), line.pointAt(last));
}

QPolygonF near_area(const QPolygonF& closed) {
  QPolygonF area = closed;
  for (const Bound& bound : bounds) {
    if (area.isEmpty()) break;
    area = cut(area, bound);
  }
  return area;
}

}  // namespace trelvo
