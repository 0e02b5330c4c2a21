#include <gtest/gtest.h>

#include <random>

#include "picture.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

Bitmap polygon(int size, const Pen& pen, const Brush& brush, const std::vector<Point>& points,
               const Background& back = {}) {
  Bitmap bitmap = blank(size, size);
  raster::draw_polygon(bitmap, pen, brush, back, points);
  return bitmap;
}

const std::vector<Point> box{{10, 10}, {10, 20}, {30, 20}, {30, 10}};

TEST(Polygon, LeavesItsRightAndLowerSideToTheOutline) {
  const Bitmap filled = polygon(40, no_pen, black_brush, box);
  EXPECT_EQ(extent(filled), "10-29 10-19");
  EXPECT_EQ(count_painted(filled), 200);
  const Bitmap outlined = polygon(40, {0, 1, red}, black_brush, box);
  EXPECT_EQ(extent(outlined), "10-30 10-20");
  EXPECT_EQ(row(outlined, 20), "..........rrrrrrrrrrrrrrrrrrrrr.........");
  EXPECT_EQ(row(outlined, 15), "..........r###################r.........");
}

TEST(Polygon, WithoutAFillIsItsOutline) {
  for (const Brush::Kind kind : {Brush::Kind::none, Brush::Kind::pattern}) {
    const Bitmap bitmap = polygon(40, thin, {kind, 0, black}, box);
    EXPECT_EQ(count_painted(bitmap), 60);
    EXPECT_FALSE(painted(bitmap, 15, 15));
  }
  EXPECT_EQ(count_painted(polygon(40, thin, {Brush::Kind::hatch, 9, black}, box)), 60);
}

TEST(Polygon, WhatIsCoveredTwiceIsOutside) {
  // The middle third is walked round a second time.
  const std::vector<Point> nested{{0, 0}, {9, 0}, {9, 3}, {0, 3}, {0, 0}, {3, 0}, {3, 3}, {6, 3}, {6, 0}, {0, 0}};
  EXPECT_EQ(row(polygon(10, no_pen, black_brush, nested), 1), "###...###.");
  const std::vector<Point> twice{{0, 0}, {9, 0}, {9, 3}, {0, 3}, {0, 0}, {9, 0}, {9, 3}, {0, 3}};
  EXPECT_EQ(extent(polygon(10, no_pen, black_brush, twice)), "nothing");
}

// The number of sides that a ray to the left crosses, by products alone.
bool inside(const std::vector<Point>& points, int x, int y) {
  bool odd = false;
  for (std::size_t i = 0; i < points.size(); ++i) {
    Point a = points[i];
    Point b = points[(i + 1) % points.size()];
    if (a.y > b.y) std::swap(a, b);
    if (y < a.y || y >= b.y) continue;
    if ((x - a.x) * (b.y - a.y) >= (y - a.y) * (b.x - a.x)) odd = !odd;
  }
  return odd;
}

TEST(Polygon, FillsByTheEvenOddRule) {
  std::mt19937 random(5);
  for (int i = 0; i < 300; ++i) {
    std::vector<Point> points(3 + random() % 7);
    for (Point& p : points) p = {static_cast<std::int32_t>(random() % 40), static_cast<std::int32_t>(random() % 40)};
    const Bitmap bitmap = polygon(40, no_pen, black_brush, points);
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < 40; ++x) ASSERT_EQ(painted(bitmap, x, y), inside(points, x, y)) << i << ' ' << x << ' ' << y;
    }
  }
}

TEST(Polygon, HatchesStandOnTheSurface) {
  struct Case {
    int hatch;
    Rows pattern;
  };
  const Case cases[] = {
      {0, {"........", "........", "........", "########", "........", "........", "........", "........"}},
      {1, Rows(8, "....#...")},
      {2, {"#.......", ".#......", "..#.....", "...#....", "....#...", ".....#..", "......#.", ".......#"}},
      {3, {".......#", "......#.", ".....#..", "....#...", "...#....", "..#.....", ".#......", "#......."}},
      {4, {"....#...", "....#...", "....#...", "########", "....#...", "....#...", "....#...", "....#..."}},
      {5, {"#......#", ".#....#.", "..#..#..", "...##...", "...##...", "..#..#..", ".#....#.", "#......#"}},
  };
  const std::vector<Point> square{{3, 5}, {22, 5}, {22, 19}, {3, 19}};
  for (const Case& c : cases) {
    const Brush brush{Brush::Kind::hatch, c.hatch, black};
    const Bitmap clear = polygon(24, no_pen, brush, square);
    const Bitmap opaque = polygon(24, no_pen, brush, square, {true, red});
    for (int y = 0; y < 24; ++y) {
      for (int x = 0; x < 24; ++x) {
        const bool in = x >= 3 && x < 22 && y >= 5 && y < 19;
        const bool on = c.pattern[static_cast<std::size_t>(y % 8)][static_cast<std::size_t>(x % 8)] == '#';
        ASSERT_EQ(painted(clear, x, y), in && on) << c.hatch << ' ' << x << ' ' << y;
        const std::uint32_t shown = on ? pixel_of(black) : pixel_of(red);
        ASSERT_EQ(pixel(opaque, x, y), in ? shown : 0xFFFFFFFF) << c.hatch << ' ' << x << ' ' << y;
      }
    }
  }
}

TEST(Polygon, FarCornersAreRight) {
  constexpr std::int32_t far = 2000000000;
  const std::vector<Point> all{{-far, -far}, {far, -far}, {far, far}, {-far, far}};
  EXPECT_EQ(count_painted(polygon(30, thin, black_brush, all)), 900);
  // Left of the falling diagonal.
  const Bitmap half = polygon(30, no_pen, black_brush, {{-far, -far}, {far, far}, {-far, far}});
  for (int y = 0; y < 30; ++y)
    EXPECT_EQ(row(half, y),
              std::string(static_cast<std::size_t>(y), '#') + std::string(static_cast<std::size_t>(30 - y), '.'));
  // A slope of one third through (0, 0).
  const Bitmap third =
      polygon(30, no_pen, black_brush, {{-1500000000, -500000000}, {1500000000, 500000000}, {far, -far}});
  for (int y = 0; y < 10; ++y) EXPECT_EQ(row(third, y).find('#'), static_cast<std::size_t>(3 * y));
}

}  // namespace

}  // namespace trelvo
