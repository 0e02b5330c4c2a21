// Figures that leave the bitmap show the same pixels as in a bitmap that holds them whole.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "picture.h"
#include "platform/raster/figures.h"

namespace trelvo {

namespace {

constexpr int large_side = 320;
constexpr int left = 120;  // multiples of 8, so that the hatches agree
constexpr int top = 112;
constexpr int width = 73;
constexpr int height = 61;

class Figures {
 public:
  explicit Figures(unsigned seed, std::int32_t farthest = 0) : random_(seed), farthest_(farthest) {}

  int number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  Point point() { return {coordinate(), coordinate()}; }
  Pen pen() { return {number(5), number(3) == 0 ? 2 + number(12) : 1, number(2) == 0 ? black : red}; }
  Brush brush() { return {static_cast<Brush::Kind>(number(4)), number(6), rgb(0, 0, 255)}; }
  Background background() { return {number(2) == 0, rgb(0, 255, 0)}; }

 private:
  // On the large bitmap, or often far outside.
  std::int32_t coordinate() {
    const int near = number(large_side);
    if (farthest_ == 0 || number(2) == 0) return near;
    return std::uniform_int_distribution<std::int32_t>(-farthest_, farthest_)(random_);
  }

  std::mt19937 random_;
  std::int32_t farthest_;
};

// A figure, moved by an offset.
using Painter = std::function<void(Bitmap&, Point)>;

std::vector<Point> moved(std::vector<Point> points, Point by) {
  for (Point& point : points) point = {point.x + by.x, point.y + by.y};
  return points;
}

Painter random_figure(Figures& f) {
  const Pen pen = f.pen();
  const Brush brush = f.brush();
  const Background back = f.background();
  std::vector<Point> p;
  for (int i = 0; i < 5; ++i) p.push_back(f.point());
  switch (f.number(5)) {
    case 0:
      return [=](Bitmap& b, Point by) { raster::draw_line(b, pen, back, moved(p, by)[0], moved(p, by)[1]); };
    case 1:
      return [=](Bitmap& b, Point by) { raster::draw_polyline(b, pen, back, moved(p, by)); };
    case 2:
      return [=](Bitmap& b, Point by) { raster::draw_polygon(b, pen, brush, back, moved(p, by)); };
    case 3:
      return [=](Bitmap& b, Point by) { raster::draw_ellipse(b, pen, brush, back, moved(p, by)[0], moved(p, by)[1]); };
    default:
      return [=](Bitmap& b, Point by) {
        const std::vector<Point> q = moved(p, by);
        raster::draw_arc(b, pen, back, q[0], q[1], q[2], q[3]);
      };
  }
}

TEST(Clipping, ShowsTheSamePixels) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    Figures figures(seed);
    const Painter paint = random_figure(figures);
    Bitmap whole = blank(large_side, large_side);
    Bitmap part = blank(width, height);
    paint(whole, {0, 0});
    paint(part, {-left, -top});
    ASSERT_EQ(picture(part), picture(window(whole, left, top, width, height))) << seed;
  }
}

TEST(Clipping, FarFiguresDoNotDependOnTheWindow) {
  constexpr Point shift{16, 8};
  int shown = 0;
  for (unsigned seed = 0; seed < 6000; ++seed) {
    const std::int32_t farthest = seed % 2 == 0 ? 2000000000 : 20000;
    Figures figures(seed, farthest);
    const Painter paint = random_figure(figures);
    Bitmap one = blank(64, 64);
    Bitmap other = blank(64, 64);
    paint(one, {-left, -top});
    paint(other, {-left - shift.x, -top - shift.y});
    const Bitmap common = window(one, shift.x, shift.y, 64 - shift.x, 64 - shift.y);
    ASSERT_EQ(picture(common), picture(window(other, 0, 0, common.width, common.height))) << seed;
    if (count_painted(common) > 0) ++shown;
  }
  EXPECT_GT(shown, 500);
}

TEST(Clipping, NoBitmapIsTooSmall) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    for (const Point size : {Point{0, 0}, {1, 1}, {0, 5}, {5, 0}}) {
      Figures figures(seed);
      Bitmap bitmap = blank(size.x, size.y);
      random_figure(figures)(bitmap, {-left, -top});
      ASSERT_EQ(bitmap.pixels.size(), static_cast<std::size_t>(size.x * size.y));
    }
  }
}

}  // namespace

}  // namespace trelvo
