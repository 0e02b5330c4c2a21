#include "geometry/trasformazioni.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "geometry/pigreco.h"

namespace trelvo {
namespace {

TEST(Trasformazioni, RotationFollowsThePlane) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> coord(-50, 50);
  for (int i = 0; i < 5000; ++i) {
    const double xc = coord(random), yc = coord(random), r = coord(random) / 3;
    const double px = i % 5 == 0 ? xc : coord(random);
    const double py = i % 7 == 0 ? yc : coord(random);
    double x = px, y = py;
    ruota_punto(xc, yc, r, x, y);
    EXPECT_NEAR(x, xc + (px - xc) * std::cos(r) - (py - yc) * std::sin(r), 1e-5);
    EXPECT_NEAR(y, yc + (px - xc) * std::sin(r) + (py - yc) * std::cos(r), 1e-5);
  }
}

TEST(Trasformazioni, RotationKeepsThePointOnTheCentre) {
  double x = 3, y = -4;
  ruota_punto(3, -4, 1, x, y);
  EXPECT_EQ(x, 3);
  EXPECT_EQ(y, -4);
}

TEST(Trasformazioni, MirrorFollowsThePlane) {
  struct Row {
    double x1, y1, x2, y2, px, py, x, y;
  };
  const Row rows[] = {
      {0, 0, 0, 5, 3, 4, -3, 4},   {0, 5, 0, 0, 3, 4, -3, 4},   {0, 0, 5, 0, 3, 4, 3, -4},
      {5, 0, 0, 0, 3, 4, 3, -4},   {0, 0, 1, 1, 3, 4, 4, 3},    {1, 1, 0, 0, 3, 4, 4, 3},
      {0, 0, 1, -1, 3, 4, -4, -3}, {0, 0, -1, 1, 3, 4, -4, -3}, {10, 20, 13, 23, 13, 20, 10, 23},
      {2, 2, 2, 2, 5, 7, -1, 7},  // no axis: taken as a vertical one
  };
  for (const Row& r : rows) {
    const specchio s(r.x1, r.y1, r.x2, r.y2);
    double x = r.px, y = r.py;
    s.rifletti(x, y);
    EXPECT_NEAR(x, r.x, 1e-12) << r.x2 << ' ' << r.y2;
    EXPECT_NEAR(y, r.y, 1e-12) << r.x2 << ' ' << r.y2;
    s.rifletti(x, y);
    EXPECT_NEAR(x, r.px, 1e-12);
  }
}

TEST(Trasformazioni, MirrorAboutAnUprightOrLevelAxisIsExact) {
  for (const double end : {20.0, -20.0}) {
    double x = 6, y = 11.1;
    specchio(13, 1, 13, end).rifletti(x, y);
    EXPECT_EQ(x, 20);
    EXPECT_EQ(y, 11.1);
    x = 6.3;
    specchio(1, 13, end, 13).rifletti(x, y);
    EXPECT_EQ(x, 6.3);
    EXPECT_DOUBLE_EQ(y, 14.9);
  }
}

TEST(Trasformazioni, TextAngleTurnsTheOtherWay) {
  struct Row {
    double c, s, delta;
  };
  const Row rows[] = {{1, 0, 0},    {1, 1, -45},  {0, 2, 270},   {0, -2, 90},
                      {-1, 0, 180}, {-1, 1, 225}, {-1, -1, 135}, {1, -1, 45}};
  for (const Row& r : rows) EXPECT_DOUBLE_EQ(variazione_ang_testo(r.c, r.s), r.delta) << r.c << ' ' << r.s;
  EXPECT_DOUBLE_EQ(variazione_ang_testo_ruotato(10, pigreco / 2), -90);
}

TEST(Trasformazioni, TextOnTheCentreTurnsByNinety) {
  for (const double r : {0.0, pigreco / 4, -2.0}) EXPECT_EQ(variazione_ang_testo_ruotato(0, r), 90) << r;
}

}  // namespace
}  // namespace trelvo
