#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "picture.h"
#include "platform/raster/far_line.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

using raster::draw_line;
using raster::draw_polyline;

Bitmap polyline(int width, int height, const Pen& pen, const std::vector<Point>& points, const Background& back = {}) {
  Bitmap bitmap = blank(width, height);
  draw_polyline(bitmap, pen, back, points);
  return bitmap;
}

TEST(Line, LeavesOutItsLastPoint) {
  EXPECT_EQ(extent(polyline(70, 10, thin, {{0, 5}, {60, 5}})), "0-59 5-5");
  EXPECT_EQ(extent(polyline(70, 10, thin, {{60, 5}, {0, 5}})), "1-60 5-5");
  EXPECT_EQ(extent(polyline(70, 10, {0, 0, black}, {{0, 5}, {60, 5}})), "0-59 5-5");
  EXPECT_EQ(extent(polyline(10, 10, thin, {{3, 3}, {3, 3}})), "nothing");
  EXPECT_EQ(extent(polyline(10, 10, thin, {{3, 3}})), "nothing");
  EXPECT_EQ(extent(polyline(10, 10, no_pen, {{0, 0}, {9, 9}})), "nothing");

  const Bitmap corner = polyline(30, 20, thin, {{5, 5}, {20, 5}, {20, 15}});
  EXPECT_TRUE(painted(corner, 20, 5));
  EXPECT_TRUE(painted(corner, 20, 14));
  EXPECT_FALSE(painted(corner, 20, 15));
  EXPECT_EQ(count_painted(corner), 25);
}

// The nearest pixel of each column or row; of two equally near ones the upper or left one.
Bitmap nearest_pixels(int width, int height, Point a, Point b) {
  Bitmap bitmap = blank(width, height);
  const int across = std::abs(b.x - a.x);
  const int down = std::abs(b.y - a.y);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const bool in_box =
          x >= std::min(a.x, b.x) && x <= std::max(a.x, b.x) && y >= std::min(a.y, b.y) && y <= std::max(a.y, b.y);
      // How far the pixel lies below or right of the line, times twice the longer side.
      int off = across >= down ? (y - a.y) * (b.x - a.x) - (x - a.x) * (b.y - a.y)
                               : (x - a.x) * (b.y - a.y) - (y - a.y) * (b.x - a.x);
      if (across >= down ? b.x < a.x : b.y < a.y) off = -off;
      const int run = std::max(across, down);
      if (in_box && 2 * off >= -run && 2 * off < std::max(run, 1)) {
        bitmap.pixels[static_cast<std::size_t>(y * width + x)] = 0xFF000000;
      }
    }
  }
  return bitmap;
}

TEST(Line, TakesTheNearestPixelsWhicheverWayItRuns) {
  std::mt19937 random(1);
  for (int i = 0; i < 500; ++i) {
    const auto place = [&random] { return static_cast<std::int32_t>(random() % 24); };
    const Point a{place(), place()};
    const Point b{place(), place()};
    Bitmap there = blank(24, 24);
    Bitmap back = blank(24, 24);
    draw_line(there, thin, {}, a, b);
    draw_line(back, thin, {}, b, a);
    ASSERT_EQ(picture(there), picture(nearest_pixels(24, 24, a, b))) << a.x << ',' << a.y << ' ' << b.x << ',' << b.y;
    ASSERT_EQ(picture(there), picture(back));
  }
}

TEST(Line, DashesByPixelCounts) {
  struct Case {
    int style;
    std::string pixels;
  };
  const Case cases[] = {
      {0, "##################################################"},
      {1, "##################......##################......##"},
      {2, "###...###...###...###...###...###...###...###...##"},
      {3, "#########......###......#########......###......##"},
      {4, "#########...###...###...#########...###...###...##"},
      {5, ".................................................."},
  };
  for (const Case& c : cases) {
    const Pen pen{c.style, 1, black};
    EXPECT_EQ(row(polyline(51, 1, pen, {{0, 0}, {50, 0}}), 0), c.pixels + '.') << c.style;
    EXPECT_EQ(column(polyline(1, 51, pen, {{0, 0}, {0, 50}}), 0), c.pixels + '.') << c.style;
    if (c.style == 5) continue;
    std::string opaque = c.pixels;
    std::replace(opaque.begin(), opaque.end(), '.', 'r');
    EXPECT_EQ(row(polyline(51, 1, pen, {{0, 0}, {50, 0}}, {true, red}), 0), opaque + '.') << c.style;
  }
}

TEST(Line, DashesRunOnThroughCorners) {
  const Pen pen{1, 1, black};
  const Bitmap bitmap = polyline(40, 40, pen, {{0, 0}, {10, 0}, {10, 10}, {30, 30}});
  EXPECT_EQ(row(bitmap, 0).substr(0, 12), "###########.");
  EXPECT_EQ(column(bitmap, 10).substr(0, 11), "########...");  // 8 of the second side are left of the dash
  std::string diagonal;
  for (int i = 10; i < 31; ++i) diagonal += row(bitmap, i)[static_cast<std::size_t>(i)];
  EXPECT_EQ(diagonal, "....################" + std::string("."));

  Bitmap closed = blank(20, 20);
  raster::draw_polygon(closed, {2, 1, black}, {}, {}, std::vector<Point>{{0, 0}, {10, 0}, {10, 10}, {0, 10}});
  EXPECT_EQ(row(closed, 0).substr(0, 11), "###...###..");
  EXPECT_EQ(column(closed, 0).substr(0, 11), "#.###...###");  // upwards, from step 30 at the lower corner
}

TEST(Line, FarEndsAreExactAndKeepTheDashes) {
  constexpr std::int32_t far = 2000000000;
  constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();

  Bitmap bitmap = blank(60, 60);
  draw_line(bitmap, thin, {}, {low, low}, {high, high});
  EXPECT_EQ(bitmap.pixels, polyline(60, 60, thin, {{0, 0}, {60, 60}}).pixels);

  bitmap = blank(60, 60);
  draw_line(bitmap, thin, {}, {-far, -far / 2}, {far, far / 2});  // halves go up
  for (int x = 0; x < 60; ++x) EXPECT_TRUE(painted(bitmap, x, x / 2));
  EXPECT_EQ(count_painted(bitmap), 60);

  bitmap = polyline(60, 1, {3, 1, black}, {{-far, 0}, {far, 0}});  // 2000000000 is 8 in the pattern of 24
  EXPECT_EQ(row(bitmap, 0), "#......###......#########......###......#########......###..");
  bitmap = polyline(1, 48, {3, 1, black}, {{-far, -far}, {0, -far}, {0, far}});  // 16 at the corner's row 0 mod 24
  EXPECT_EQ(column(bitmap, 0), "##......#########......###......#########......#");

  bitmap = polyline(60, 60, thin, {{low, 70}, {high, high}, {high, low}, {70, low}, {61, high}});
  EXPECT_EQ(extent(bitmap), "nothing");
}

TEST(Line, AnyNumberMayBeACoordinate) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  struct Case {
    raster::FarLine line;
    std::string extent;
  };
  const Case cases[] = {
      {{none, 1, 5, 5}, "nothing"},
      {{1, 1, 5, none}, "nothing"},
      {{-1e15, 4, 1e15, 4}, "0-29 4-4"},
      {{7, 3, 7, infinite}, "7-7 3-29"},
      {{-infinite, 9, infinite, 9}, "0-29 9-9"},
      {{-1e12, -1e12, 1e12, 1e12}, "0-29 0-29"},
      {{1e300, 0, 1e300, 5}, "nothing"},
      {{-1e300, 1e300, 1e300, 1e300}, "nothing"},
      {{infinite, infinite, infinite, infinite}, "nothing"},
      {{2147483647.4, 3, 5, 3}, "5-29 3-3"},
      {{0.5, 1.5, 2.5, 1.5}, "0-2 2-2"},
  };
  for (const Case& c : cases) {
    Bitmap bitmap = blank(30, 30);
    if (const auto part = raster::reachable_part(c.line)) draw_line(bitmap, thin, {}, part->from, part->to);
    EXPECT_EQ(extent(bitmap), c.extent) << c.line.x1 << ' ' << c.line.y1 << ' ' << c.line.x2 << ' ' << c.line.y2;
  }
}

}  // namespace

}  // namespace trelvo
