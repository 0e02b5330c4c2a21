#include "geometry/rette.h"

#include <gtest/gtest.h>

namespace trelvo {
namespace {

struct Esito {
  double X = -77;
  double Y = -77;
  std::int16_t flag = -1;
};

using Quattro = double[8];

Esito rette(const Quattro& p) {
  Esito e;
  detintersrette(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], e.X, e.Y, e.flag);
  return e;
}

Esito segmenti(const Quattro& p) {
  Esito e;
  detinters_segmenti(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], e.X, e.Y, e.flag);
  return e;
}

TEST(Rette, Intersections) {
  struct Row {
    Quattro p;
    int flag;
    double X;
    double Y;
  };
  const Row rows[] = {
      {{0, 0, 4, 4, 0, 4, 4, 0}, 1, 2, 2},      // sloping
      {{3, 0, 3, 9, 0, 1, 1, 2}, 1, 3, 4},      // first vertical
      {{0, 5, 1, 5, 0, 0, 1, 1}, 1, 5, 5},      // first horizontal
      {{0, 0, 1, 1, 7, 5, 9, 5}, 1, 5, 5},      // second horizontal
      {{2, 0, 2, 1, 0, 6, 1, 6}, 1, 2, 6},      // vertical and horizontal
      {{0, 0, 0, 1, 2, 0, 2, 1}, 0, -77, -77},  // parallel verticals: nothing computed
      {{0, 0, 1, 0, 0, 2, 1, 2}, 0, -77, -77},  // parallel horizontals
      {{0, 0, 1, 1, 0, 1, 1, 2}, 0, -77, -77},  // parallel slopes
      {{4, 4, 4, 4, 0, 0, 8, 8}, 1, 4, 4},      // a point counts as horizontal
  };
  for (const Row& row : rows) {
    const Esito e = rette(row.p);
    EXPECT_EQ(e.flag, row.flag) << row.X << ' ' << row.Y;
    EXPECT_DOUBLE_EQ(e.X, row.X);
    EXPECT_DOUBLE_EQ(e.Y, row.Y);
  }
}

// Rounding of a far point times the length of a line is no distance from it.
TEST(Rette, LongSlopingSegmentsMeetTheSidesOfAFarWindow) {
  const Esito e = segmenti({1499975, 4999985, 1499975, 5000015, 1921950.4838558135, 5023149.219190617,
                            1046684.2932552756, 4975112.674661189});
  EXPECT_EQ(e.flag, 1);
  EXPECT_EQ(e.X, 1499975);
  EXPECT_NEAR(e.Y, 4999990.271274831, 1e-6);
}

TEST(Rette, FarIntersectionsAreNoneButAreWritten) {
  Esito e = rette({0, 0, 1e11, 1, 0, 5e-1, 1, 5e-1});
  EXPECT_EQ(e.flag, 1);
  EXPECT_DOUBLE_EQ(e.X, 5e10);
  e = rette({0, 0, 1e11, 1, 0, .6, 1, .6});
  EXPECT_EQ(e.flag, 0);
  EXPECT_DOUBLE_EQ(e.X, 6e10);
}

TEST(Segmenti, CrossOrTouch) {
  struct Row {
    Quattro p;
    int flag;
  };
  const Row rows[] = {
      {{0, 0, 4, 4, 0, 4, 4, 0}, 1}, {{0, 0, 1, 1, 0, 4, 4, 0}, 0}, {{0, 0, 2, 2, 2, 2, 5, 0}, 1},
      {{0, 0, 2, 0, 2, 0, 2, 3}, 1}, {{0, 0, 2, 0, 3, 0, 5, 0}, 0}, {{0, 0, 4, 0, 2, 0, 6, 0}, 0},
      {{0, 0, 4, 0, 2, 1, 2, 5}, 0}, {{5, 5, 5, 5, 0, 0, 9, 9}, 1},
  };
  for (const Row& row : rows) {
    const Esito e = segmenti(row.p);
    EXPECT_EQ(e.flag, row.flag) << row.p[0] << ' ' << row.p[1] << ' ' << row.p[2] << ' ' << row.p[3];
    if (row.flag == 0) {
      EXPECT_EQ(e.X, -77);
      EXPECT_EQ(e.Y, -77);
    }
  }
}

TEST(Segmenti, PointOnSegment) {
  struct Row {
    double Px, Py, x1, y1, x2, y2;
    bool dentro;
  };
  const Row rows[] = {
      {2, 0, 0, 0, 4, 0, true},        {4, 0, 4, 0, 0, 0, true},    {5, 0, 0, 0, 4, 0, false},
      {3, 2, 3, 5, 3, 1, true},        {3, 6, 3, 5, 3, 1, false},   {2, 2, 0, 0, 4, 4, true},
      {2, 2, 4, 4, 0, 0, true},        {1, 3, 0, 4, 4, 0, true},    {5, 5, 0, 0, 4, 4, false},
      {3, 3, 3, 3, 3, 3, true},        {3, 3.1, 3, 3, 3, 3, false}, {3.1, 3, 3, 3, 3, 3, false},
      {3.00001, 3, 3, 3, 3, 3, false},
  };
  for (const Row& r : rows) {
    EXPECT_EQ(detPinsegmento(r.Px, r.Py, r.x1, r.y1, r.x2, r.y2), r.dentro) << r.Px << ' ' << r.Py << ' ' << r.x2;
  }
}

TEST(Segmenti, ToleranceIsForSlopingSegmentsOnly) {
  EXPECT_FALSE(detPinsegmento(2, 0.00001, 0, 0, 4, 0));
  EXPECT_FALSE(detPinsegmento(0.00001, 2, 0, 0, 0, 4));
  EXPECT_TRUE(detPinsegmento(2, 2.00001, 0, 0, 4, 4));
}

TEST(Segmenti, ToleranceIsAbsolute) {
  EXPECT_TRUE(detPinsegmento(0.5, 0.50009, 0, 0, 1, 1));
  EXPECT_FALSE(detPinsegmento(500, 500.00009, 0, 0, 1000, 1000));
  EXPECT_TRUE(detPinsegmento(0.005, 0.009, 0, 0, 0.01, 0.01));
}

TEST(Rettangoli, TestLeavesTheCornersExchanged) {
  double x1 = 9, y1 = 8, x2 = 1, y2 = 2;
  EXPECT_TRUE(detPinRettangolo(9, 2, x1, y1, x2, y2));
  EXPECT_EQ(x1, 1);
  EXPECT_EQ(x2, 9);
  EXPECT_EQ(y1, 2);
  EXPECT_EQ(y2, 8);
  EXPECT_FALSE(detPinRettangolo(9.0001, 2, x1, y1, x2, y2));
}

}  // namespace
}  // namespace trelvo
