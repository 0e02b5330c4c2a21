#include "platform/qt/near_part.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace trelvo {
namespace {

constexpr double far = 1e9;
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(NearPart, LinesKeepTheirCourse) {
  const struct {
    QLineF line, part;
  } table[] = {
      {{-3, 4, nearness, 8}, {-3, 4, nearness, 8}},
      {{0, 0, far, far / 2}, {0, 0, nearness, nearness / 2}},
      {{-far, 0, far, 0}, {-nearness, 0, nearness, 0}},
      {{10, -far, 10, -20}, {10, -nearness, 10, -20}},
      {{-far, -far, far, far}, {-nearness, -nearness, nearness, nearness}},
  };
  for (const auto& row : table) {
    const auto part = near_part(row.line);
    ASSERT_TRUE(part);
    EXPECT_NEAR(part->x1(), row.part.x1(), 1e-3);
    EXPECT_NEAR(part->y1(), row.part.y1(), 1e-3);
    EXPECT_NEAR(part->x2(), row.part.x2(), 1e-3);
    EXPECT_NEAR(part->y2(), row.part.y2(), 1e-3);
  }
}

TEST(NearPart, NothingOfLinesThatPassBy) {
  for (const QLineF& line : {QLineF(far, 0, far, 5), QLineF(0, 3 * nearness, 3 * nearness, 0), QLineF(0, 0, inf, 0),
                             QLineF(std::nan(""), 0, 1, 1)}) {
    EXPECT_FALSE(near_part(line));
  }
}

// The share of the bounds' square that is inside, by a grid of points.
double share_inside(const QPolygonF& area) {
  int inside = 0;
  constexpr int side = 40;
  for (int i = 0; i < side; ++i) {
    for (int j = 0; j < side; ++j) {
      const QPointF p((2 * i + 1 - side) * nearness / side, (2 * j + 1 - side) * nearness / side);
      inside += area.containsPoint(p, Qt::OddEvenFill) ? 1 : 0;
    }
  }
  return static_cast<double>(inside) / (side * side);
}

TEST(NearPart, AreasKeepTheirInside) {
  const struct {
    QPolygonF polygon;
    double share;
  } table[] = {
      {{{-far, -far}, {far, -far}, {far, far}, {-far, far}}, 1},
      {{{0, -far}, {far, -far}, {far, far}, {0, far}}, 0.5},
      {{{0, 0}, {far, 0}, {far, far}, {0, far}}, 0.25},
      {{{2 * nearness, 0}, {far, 0}, {far, far}}, 0},
      // Round twice: the even-odd rule leaves a hole.
      {{{-far, -far}, {far, -far}, {far, far}, {-far, far}, {-far, -far}, {0, -far}, {0, far}, {-far, far}}, 0.5},
  };
  for (const auto& row : table) {
    EXPECT_NEAR(share_inside(row.polygon), row.share, 1e-9);
    const QPolygonF area = near_area(row.polygon);
    EXPECT_NEAR(share_inside(area), row.share, 1e-9);
    EXPECT_TRUE(is_near(area));
  }
}

}  // namespace
}  // namespace trelvo
