#include "geometry/angoli.h"

#include <gtest/gtest.h>

#include <cmath>

#include "geometry/pigreco.h"

namespace trelvo {
namespace {

double gradi(double g) { return g * pigreco / 180; }

TEST(Angoli, AxesAreExact) {
  EXPECT_EQ(detAngolo(3, 3, 3, 3), 0);
  EXPECT_EQ(detAngolo(0, 0, 5, 0), 0);
  EXPECT_EQ(detAngolo(0, 0, 0, 5), pigreco / 2);
  EXPECT_EQ(detAngolo(0, 0, -5, 0), pigreco);
  EXPECT_EQ(detAngolo(0, 0, 0, -5), 3 * pigreco / 2);
  EXPECT_EQ(detAngolo(0, 0, 5, -1e-20), 0);
}

TEST(Angoli, EveryDirectionIsFromZeroBelowAFullTurn) {
  for (int g = 0; g < 720; ++g) {
    const double atteso = gradi(g / 2.0);
    const double x = 7 + 3 * std::cos(atteso);
    const double y = -2 + 3 * std::sin(atteso);
    const double trovato = detAngolo(7, -2, x, y);
    // The arcsine loses half of the digits near the vertical.
    EXPECT_LT(std::fabs(std::sin((trovato - atteso) / 2)), 1e-7) << g;
    EXPECT_GE(trovato, 0);
    EXPECT_LT(trovato, 2 * pigreco);
    EXPECT_EQ(angolo_retta_P1P2(7, -2, x, y), trovato);
  }
}

struct Arco {
  double a;
  double b;
  double p;
  bool dentro;
};

bool nell_arco(const Arco& r) {
  const auto x = [](double g) { return std::cos(gradi(g)); };
  const auto y = [](double g) { return std::sin(gradi(g)); };
  return detPinArco(x(r.p), y(r.p), 0, 0, x(r.a), y(r.a), x(r.b), y(r.b));
}

TEST(Archi, SpanGoesBackFromTheFirstEnd) {
  const Arco rows[] = {
      {60, 300, 0, true},   {60, 300, 350, true}, {60, 300, 180, false},  // first end above: wrapped
      {300, 60, 180, true}, {300, 60, 0, false},  {300, 60, 90, true},    // first end below: unwrapped
  };
  for (const Arco& r : rows) EXPECT_EQ(nell_arco(r), r.dentro) << r.a << ' ' << r.b << ' ' << r.p;
}

TEST(Archi, BothEndsAboveTakeEverythingOrNothing) {
  for (int p = 0; p < 360; p += 15) {
    EXPECT_TRUE(nell_arco({45, 10, p + .5, true})) << p;
    EXPECT_FALSE(nell_arco({10, 45, p + .5, false})) << p;
  }
}

TEST(Archi, LevelEnds) {
  // Centre on the level of the ends, the first one at the right: angle 0 stands for a full turn.
  EXPECT_TRUE(detPinArco(0, -1, 0, 0, 1, 0, -1, 0));
  EXPECT_FALSE(detPinArco(0, 1, 0, 0, 1, 0, -1, 0));
  // The first at the left: wrapped.
  EXPECT_TRUE(detPinArco(0, 1, 0, 0, -1, 0, 1, 0));
  // Off the centre's level, the first at the right: wrapped.
  EXPECT_TRUE(detPinArco(1, 0, 0, 0, .6, .8, -.6, .8));
  EXPECT_TRUE(detPinArco(0, -1, 0, 0, .6, .8, -.6, .8));
  EXPECT_FALSE(detPinArco(0, 1, 0, 0, .6, .8, -.6, .8));
}

}  // namespace
}  // namespace trelvo
