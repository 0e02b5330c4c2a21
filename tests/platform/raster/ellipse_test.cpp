#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "picture.h"
#include "platform/raster/ellipse_grid.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

using raster::draw_arc;
using raster::draw_ellipse;
using raster::EllipseGrid;

Bitmap ellipse(int size, const Pen& pen, const Brush& brush, Point corner1, Point corner2) {
  Bitmap bitmap = blank(size, size);
  draw_ellipse(bitmap, pen, brush, {}, corner1, corner2);
  return bitmap;
}

Bitmap arc(int size, const Pen& pen, Point corner1, Point corner2, Point start, Point end) {
  Bitmap bitmap = blank(size, size);
  draw_arc(bitmap, pen, {}, corner1, corner2, start, end);
  return bitmap;
}

TEST(Ellipse, FillsItsBox) {
  for (const Brush& brush : {Brush{}, black_brush}) {
    EXPECT_EQ(extent(ellipse(40, thin, brush, {10, 10}, {30, 30})), "10-29 10-29");
    EXPECT_EQ(extent(ellipse(40, thin, brush, {30, 10}, {10, 30})), "10-29 10-29");
  }
  EXPECT_EQ(extent(ellipse(40, no_pen, black_brush, {10, 10}, {30, 30})), "10-29 10-29");
  EXPECT_EQ(extent(ellipse(40, no_pen, {}, {10, 10}, {30, 30})), "nothing");
  EXPECT_EQ(extent(ellipse(40, thin, black_brush, {10, 10}, {10, 30})), "nothing");
}

TEST(Ellipse, LooksRound) {
  EXPECT_EQ(picture(ellipse(5, thin, {}, {0, 0}, {5, 5})), (Rows{".###.", "#...#", "#...#", "#...#", ".###."}));
  EXPECT_EQ(picture(ellipse(8, {0, 1, red}, black_brush, {0, 0}, {8, 8})),
            (Rows{"..rrrr..", ".r####r.", "r######r", "r######r", "r######r", "r######r", ".r####r.", "..rrrr.."}));
}

TEST(Ellipse, EverySizeIsSymmetricAndExact) {
  for (int width = 1; width <= 40; ++width) {
    for (int height = 1; height <= 40; ++height) {
      const std::string box = "2-" + std::to_string(width + 1) + " 3-" + std::to_string(height + 2);
      const Bitmap outline = ellipse(45, thin, {}, {2, 3}, {2 + width, 3 + height});
      const Bitmap filled = ellipse(45, no_pen, black_brush, {2, 3}, {2 + width, 3 + height});
      ASSERT_EQ(extent(outline), box);
      ASSERT_EQ(extent(filled), box);
      for (int y = 3; y < 3 + height; ++y) {
        for (int x = 2; x < 2 + width; ++x) {
          ASSERT_EQ(painted(outline, x, y), painted(outline, 3 + width - x, y));
          ASSERT_EQ(painted(outline, x, y), painted(outline, x, 5 + height - y));
          // The outline is the part of the inside that has a neighbour outside.
          const bool edge = painted(filled, x, y) && !(painted(filled, x - 1, y) && painted(filled, x + 1, y) &&
                                                       painted(filled, x, y - 1) && painted(filled, x, y + 1));
          ASSERT_EQ(painted(outline, x, y), edge) << width << 'x' << height << " at " << x << ',' << y;
        }
      }
    }
  }
}

// Every place from 0 to the end belongs to one pixel, and follows its neighbour.
TEST(Ellipse, OutlineIsCountedOnceRound) {
  for (int width = 3; width <= 40; ++width) {
    for (int height = (width + 2) / 3; height <= 3 * width && height <= 40; ++height) {
      if (height < 3) continue;
      const EllipseGrid grid({0, 0}, {width, height});
      const Bitmap outline = ellipse(41, thin, {}, {0, 0}, {width, height});
      std::map<std::int64_t, Point> places;
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
          if (painted(outline, x, y)) places[grid.place_of(x, y)] = {x, y};
        }
      }
      ASSERT_EQ(static_cast<int>(places.size()), count_painted(outline)) << width << 'x' << height;
      ASSERT_EQ(grid.length(), count_painted(outline));
      ASSERT_EQ(places.rbegin()->first, grid.length() - 1);
      Point last = places.rbegin()->second;
      for (const auto& [place, point] : places) {
        ASSERT_LE(std::abs(point.x - last.x), 1);
        ASSERT_LE(std::abs(point.y - last.y), 1);
        last = point;
      }
      ASSERT_EQ(places[0].x, width - 1);
      ASSERT_LE(places[1].y, (height - 1) / 2);  // upwards first
    }
  }
}

TEST(Ellipse, DashesFollowTheOutline) {
  const EllipseGrid grid({5, 5}, {45, 35});
  Bitmap dashed = blank(50, 50);
  draw_ellipse(dashed, {4, 1, black}, {}, {true, red}, {5, 5}, {45, 35});
  const std::string pattern = "#########rrr###rrr###rrr";
  const Bitmap outline = ellipse(50, thin, {}, {5, 5}, {45, 35});
  for (int y = 0; y < 50; ++y) {
    for (int x = 0; x < 50; ++x) {
      const char expected = painted(outline, x, y) ? pattern[static_cast<std::size_t>(grid.place_of(x, y) % 24)] : '.';
      ASSERT_EQ(row(dashed, y)[static_cast<std::size_t>(x)], expected) << x << ',' << y;
    }
  }
}

TEST(Arc, RunsCounterClockwiseAsSeen) {
  struct Case {
    Point start, end;
    std::string extent;
  };
  // The box has its centre in the pixel 19, 19.
  const Point east{40, 19}, north{19, 0}, west{0, 19}, south{19, 40};
  const Case cases[] = {
      {east, north, "19-28 10-19"}, {north, west, "10-19 10-19"}, {west, south, "10-19 19-28"},
      {south, east, "19-28 19-28"}, {east, west, "10-28 10-19"},  {west, east, "10-28 19-28"},
      {north, east, "10-28 10-28"}, {east, south, "10-28 10-28"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(extent(arc(40, thin, {10, 10}, {29, 29}, c.start, c.end)), c.extent);
  }
  const Bitmap most = arc(40, thin, {10, 10}, {29, 29}, north, east);
  EXPECT_EQ(extent(window(most, 20, 0, 20, 19)), "nothing");
}

TEST(Arc, EqualRaysGiveTheWholeEllipse) {
  for (const int width : {1, 4}) {
    const Pen pen{0, width, black};
    const Bitmap whole = ellipse(60, pen, {}, {5, 10}, {50, 40});
    EXPECT_EQ(arc(60, pen, {5, 10}, {50, 40}, {59, 3}, {59, 3}).pixels, whole.pixels);
    // The centre is at 27, 24.5: the same ray, three times as long.
    EXPECT_EQ(arc(60, pen, {5, 10}, {50, 40}, {30, 25}, {36, 26}).pixels, whole.pixels);
  }
}

TEST(Arc, TheOtherArcIsTheRest) {
  for (int i = 0; i < 200; ++i) {
    const double turn = i * 0.173;
    const Point a{static_cast<std::int32_t>(std::lround(25 + 40 * std::cos(turn))),
                  static_cast<std::int32_t>(std::lround(25 + 40 * std::sin(turn)))};
    const Point b{static_cast<std::int32_t>(std::lround(25 + 60 * std::cos(i * 0.71))),
                  static_cast<std::int32_t>(std::lround(25 + 60 * std::sin(i * 0.71)))};
    const Bitmap whole = ellipse(60, thin, {}, {5, 10}, {50, 40});
    Bitmap both = arc(60, thin, {5, 10}, {50, 40}, a, b);
    const int first = count_painted(both);
    const int second = count_painted(arc(60, thin, {5, 10}, {50, 40}, b, a));
    draw_arc(both, thin, {}, {5, 10}, {50, 40}, b, a);
    ASSERT_EQ(both.pixels, whole.pixels) << i;
    ASSERT_LE(first + second, count_painted(whole) + 2) << i;
  }
}

TEST(Arc, DashesBeginAtTheFirstRay) {
  Bitmap bitmap = blank(110, 60);
  draw_arc(bitmap, {1, 1, black}, {}, {5, 5}, {106, 56}, {55, 0}, {0, 30});
  // One pixel a column: 18 from the top leftwards, a gap of 6, and on.
  const Bitmap upper = window(bitmap, 20, 0, 37, 20);
  std::string shadow;
  for (int x = 0; x < 37; ++x) shadow += column(upper, x).find('#') == std::string::npos ? '.' : '#';
  EXPECT_EQ(shadow, "############......##################.");
}

// Within half the width of the circle, in whole numbers: everything doubled.
bool in_ring(int low, int high, int width, int x, int y) {
  const int shift = width % 2 == 0 ? 1 : 0;
  const int across = 2 * x - (low + high - 1) + shift;
  const int down = 2 * y - (low + high - 1) + shift;
  const int radius = high - low - 1;
  const int square = across * across + down * down;
  return square <= (radius + width) * (radius + width) &&
         (width > radius || square >= (radius - width) * (radius - width));
}

TEST(WideEllipse, CoversARing) {
  for (int width = 2; width < 30; ++width) {
    for (const int high : {23, 30, 31}) {
      const Bitmap bitmap = ellipse(50, {0, width, black}, {}, {10, 10}, {high, high});
      for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 50; ++x) {
          ASSERT_EQ(painted(bitmap, x, y), in_ring(10, high, width, x, y)) << width << ' ' << x << ',' << y;
        }
      }
    }
  }
}

TEST(WideArc, IsAPartOfTheRingWithRoundEnds) {
  const Pen pen{0, 7, black};
  // A quarter from the right to the top; the ends reach 3 pixels beyond the rays.
  EXPECT_EQ(extent(arc(60, pen, {10, 10}, {49, 49}, {59, 29}, {29, 0})), "26-51 7-32");
  EXPECT_EQ(extent(arc(60, pen, {10, 10}, {49, 49}, {29, 0}, {59, 29})), "7-51 7-51");
  EXPECT_EQ(extent(arc(60, pen, {10, 10}, {49, 49}, {0, 29}, {59, 29})), "7-51 26-51");
  const Bitmap ring = ellipse(60, pen, {}, {10, 10}, {49, 49});
  const Bitmap quarter = arc(60, pen, {10, 10}, {49, 49}, {59, 29}, {29, 0});
  for (int y = 0; y < 30; ++y) EXPECT_EQ(row(quarter, y).substr(29), row(ring, y).substr(29));
}

TEST(Ellipse, HugeOnesAreRightWhereTheyShow) {
  constexpr std::int32_t far = 2000000000;
  for (const int style : {0, 1}) {
    // The top, 2000000000 wide to each side: flat as far as one can see.
    Bitmap bitmap = blank(48, 20);
    draw_ellipse(bitmap, {style, 1, black}, {}, {true, red}, {-far, 5}, {far, far});
    EXPECT_EQ(extent(bitmap), "0-47 5-5");
    EXPECT_EQ(std::count(bitmap.pixels.begin(), bitmap.pixels.end(), 0xFF000000U), style == 0 ? 48 : 36);
  }
  Bitmap side = blank(20, 48);
  draw_ellipse(side, thin, black_brush, {}, {-far, -far}, {10, far});
  EXPECT_EQ(extent(side), "0-9 0-47");
  EXPECT_EQ(count_painted(side), 480);

  // A circle of radius 100000 about (0, 100000): its pixels follow x * x / 2r.
  Bitmap circle = blank(1000, 12);
  draw_arc(circle, thin, {}, {-100000, 0}, {100000, 200000}, {100000, 100000}, {-100000, 100000});
  for (int x = 0; x < 1000; ++x) {
    const double depth = 100000 - std::sqrt(1e10 - (x + 0.5) * (x + 0.5));
    EXPECT_TRUE(painted(circle, x, static_cast<int>(std::ceil(depth - 0.5)))) << x;
  }
  EXPECT_EQ(count_painted(circle), 1000);

  Bitmap wide = blank(40, 40);
  draw_arc(wide, {0, 5, black}, {}, {-far, 20}, {far, far}, {far, far / 2}, {-far, far / 2});
  EXPECT_EQ(extent(wide), "0-39 18-22");
  EXPECT_EQ(count_painted(wide), 200);
}

}  // namespace

}  // namespace trelvo
