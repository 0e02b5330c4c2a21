#include <gtest/gtest.h>

#include <random>

#include "picture.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

Bitmap wide_line(int size, int width, Point a, Point b, int style = 0) {
  Bitmap bitmap = blank(size, size);
  raster::draw_polyline(bitmap, {style, width, black}, {}, std::vector<Point>{a, b});
  return bitmap;
}

TEST(WidePen, CoversByItsWidth) {
  struct Case {
    int width;
    std::string along;
    std::string across;
  };
  const Case cases[] = {
      {2, "9-40", "19-20"}, {3, "9-41", "19-21"}, {4, "8-41", "18-21"}, {5, "8-42", "18-22"}, {6, "7-42", "17-22"}};
  for (const Case& c : cases) {
    EXPECT_EQ(extent(wide_line(60, c.width, {10, 20}, {40, 20})), c.along + ' ' + c.across);
    EXPECT_EQ(extent(wide_line(60, c.width, {40, 20}, {10, 20})), c.along + ' ' + c.across);
    EXPECT_EQ(extent(wide_line(60, c.width, {20, 10}, {20, 40})), c.across + ' ' + c.along);
  }
}

TEST(WidePen, HasRoundEnds) {
  Bitmap bitmap = blank(12, 7);
  raster::draw_line(bitmap, {0, 5, black}, {}, {3, 3}, {8, 3});
  EXPECT_EQ(picture(bitmap), (Rows{"............", "..########..", ".##########.", ".##########.", ".##########.",
                                   "..########..", "............"}));
  bitmap = blank(6, 6);
  raster::draw_line(bitmap, {0, 4, black}, {}, {3, 3}, {3, 3});
  EXPECT_EQ(picture(bitmap), (Rows{"......", "..##..", ".####.", ".####.", "..##..", "......"}));
}

TEST(WidePen, IsSolidInEveryStyleButFive) {
  for (int style = 1; style < 5; ++style) {
    EXPECT_EQ(wide_line(60, 3, {5, 9}, {50, 31}, style).pixels, wide_line(60, 3, {5, 9}, {50, 31}).pixels);
  }
  EXPECT_EQ(extent(wide_line(60, 3, {5, 9}, {50, 31}, 5)), "nothing");
}

// In half pixels all is whole: the pen's centre of an even width lies one up and left.
bool in_sweep(Point a, Point b, int width, int x, int y) {
  const std::int64_t shift = width % 2 == 0 ? 1 : 0;
  const std::int64_t px = 2 * (x - a.x) + shift, py = 2 * (y - a.y) + shift;
  const std::int64_t dx = 2 * (b.x - a.x), dy = 2 * (b.y - a.y);
  const std::int64_t square = dx * dx + dy * dy;
  const std::int64_t along = px * dx + py * dy;
  const std::int64_t limit = static_cast<std::int64_t>(width) * width;
  if (along <= 0) return px * px + py * py <= limit;
  if (along >= square) return (px - dx) * (px - dx) + (py - dy) * (py - dy) <= limit;
  const std::int64_t off = px * dy - py * dx;
  return off * off <= limit * square;
}

TEST(WidePen, SweepsItsDisc) {
  std::mt19937 random(3);
  for (int i = 0; i < 400; ++i) {
    const auto place = [&random] { return static_cast<std::int32_t>(random() % 60); };
    const Point a{place(), place()};
    const Point b{place(), place()};
    const int width = 2 + static_cast<int>(random() % 14);
    const Bitmap bitmap = wide_line(60, width, a, b);
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) {
        ASSERT_EQ(painted(bitmap, x, y), in_sweep(a, b, width, x, y))
            << width << ": " << a.x << ',' << a.y << ' ' << b.x << ',' << b.y << " at " << x << ',' << y;
      }
    }
  }
}

TEST(WidePen, JoinsAreRound) {
  Bitmap bitmap = blank(40, 40);
  raster::draw_polyline(bitmap, {0, 7, black}, {}, std::vector<Point>{{5, 30}, {30, 30}, {30, 5}});
  EXPECT_TRUE(painted(bitmap, 32, 32));
  EXPECT_FALSE(painted(bitmap, 33, 33));
  EXPECT_EQ(extent(bitmap), "2-33 2-33");
}

TEST(WidePen, FarEndsAreRight) {
  constexpr std::int32_t far = 2000000000;
  const Bitmap level = wide_line(40, 4, {-far, 20}, {far, 20});
  EXPECT_EQ(extent(level), "0-39 18-21");
  EXPECT_EQ(count_painted(level), 160);
  const Bitmap slope = wide_line(40, 3, {-far, -far}, {far, far});
  for (int i = 1; i < 39; ++i) EXPECT_EQ(row(slope, i).substr(static_cast<std::size_t>(i) - 1, 3), "###");
  EXPECT_EQ(count_painted(slope), 40 + 2 * 39 + 2 * 38);  // to 1.5 from the diagonal, so two pixels to each side
  EXPECT_EQ(count_painted(wide_line(40, far, {-1000000100, 20}, {-1000000100, 20})), 0);
  EXPECT_EQ(count_painted(wide_line(40, far, {-999999900, 20}, {-999999900, 20})), 1600);
}

}  // namespace

}  // namespace trelvo
