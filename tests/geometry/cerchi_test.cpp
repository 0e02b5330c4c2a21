#include "geometry/cerchi.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/runtime_error.h"

namespace trelvo {
namespace {

TEST(Cerchi, QuadraticLeavesTheRootsWithoutSolution) {
  double d = 0, x1 = 8, x2 = 9;
  risolvi2grado(1, -3, 2, d, x1, x2);
  EXPECT_EQ(d, 1);
  EXPECT_EQ(x1, 2);
  EXPECT_EQ(x2, 1);
  risolvi2grado(2, -4, 2, d, x1, x2);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(x1, 1);
  EXPECT_EQ(x2, 1);
  x1 = 8;
  risolvi2grado(1, 0, 1, d, x1, x2);
  EXPECT_EQ(d, -4);
  EXPECT_EQ(x1, 8);
}

TEST(Cerchi, WithSegment) {
  struct Row {
    double x1, y1, x2, y2;
    int flag1, flag2;
    double IX1, IY1, IX2, IY2;
  };
  // Circle about (10, 10) of radius 5.
  const Row rows[] = {
      {0, 10, 20, 10, 1, 1, 15, 10, 5, 10},
      {10, 0, 10, 20, 1, 1, 10, 15, 10, 5},
      {10, 10, 20, 10, 1, 0, 15, 10, 5, 10},
      {7, 6, 7, 9, 0, 1, 7, 14, 7, 6},
      {3, 3, 17, 17, 1, 1, 10 + 5 / std::sqrt(2), 10 + 5 / std::sqrt(2), 10 - 5 / std::sqrt(2), 10 - 5 / std::sqrt(2)},
      {9, 9, 11, 11, 0, 0, 0, 0, 0, 0},
      {15, 0, 15, 20, 1, 1, 15, 10, 15, 10},
      {16, 0, 16, 20, 0, 0, 0, 0, 0, 0},
      {15, 10, 15, 10, 1, 0, 15, 10, 5, 10},
      {12, 10, 12, 10, 0, 0, 0, 0, 0, 0},
  };
  for (const Row& r : rows) {
    double IX1 = 0, IY1 = 0, IX2 = 0, IY2 = 0;
    std::int16_t flag1 = -1, flag2 = -1;
    detinters_cerchio_segmento(10, 10, 5, r.x1, r.y1, r.x2, r.y2, IX1, IY1, IX2, IY2, flag1, flag2);
    EXPECT_EQ(flag1, r.flag1) << r.x1 << ' ' << r.y1;
    EXPECT_EQ(flag2, r.flag2) << r.x1 << ' ' << r.y1;
    if (flag1 != 0 || flag2 != 0) {
      EXPECT_DOUBLE_EQ(IX1, r.IX1);
      EXPECT_DOUBLE_EQ(IY1, r.IY1);
      EXPECT_DOUBLE_EQ(IX2, r.IX2);
      EXPECT_DOUBLE_EQ(IY2, r.IY2);
    }
  }
}

struct Incontro {
  std::int16_t flag = -1;
  double IX1 = 0, IY1 = 0, IX2 = 0, IY2 = 0;
};

Incontro incontro(double Xa, double Ya, double Ra, double Xb, double Yb, double Rb) {
  Incontro i;
  detinters_cerchio_cerchio(Xa, Ya, Ra, Xb, Yb, Rb, i.flag, i.IX1, i.IY1, i.IX2, i.IY2);
  return i;
}

TEST(Cerchi, ContainmentIsTestedOnOneSideOnly) {
  EXPECT_EQ(incontro(0, 1, 1, 0, 0, 10).flag, 0);
  // Exchanged, the discriminant decides; it says no for circles well apart and yes for these concentric ones.
  EXPECT_EQ(incontro(0, 0, 10, 0, 1, 1).flag, 0);
  EXPECT_EQ(incontro(0, 0, 10, 0, 0, 1).flag, 1);
}

TEST(Cerchi, PointsLieOnTheUpperHalfOfTheSecondCircle) {
  // They meet at (3, 4) and (3, -4): both come back above.
  Incontro i = incontro(0, 0, 5, 6, 1e-9, 5);
  EXPECT_EQ(i.flag, 1);
  EXPECT_NEAR(i.IX1, 3, 1e-6);
  EXPECT_NEAR(i.IY1, 4, 1e-6);
  EXPECT_NEAR(i.IY2, 4, 1e-6);
  // They meet at (4, 3) and (-4, 3), below the second centre: mirrored about it.
  i = incontro(0, 0, 5, 0, 6, 5);
  EXPECT_EQ(i.flag, 1);
  EXPECT_NEAR(i.IX1, 4, 1e-12);
  EXPECT_NEAR(i.IX2, -4, 1e-12);
  EXPECT_NEAR(i.IY1, 9, 1e-12);
}

TEST(Cerchi, LevelCentresGiveTheOrdinatesAsAbscissas) {
  const Incontro i = incontro(-6, 0, 5, 0, 0, 5);
  EXPECT_EQ(i.flag, 1);
  EXPECT_DOUBLE_EQ(i.IX1, 4);
  EXPECT_DOUBLE_EQ(i.IX2, -4);
  EXPECT_DOUBLE_EQ(i.IY1, 3);
}

TEST(Cerchi, NegativeRootIsAnErrorAfterTheFlag) {
  Incontro i;
  try {
    detinters_cerchio_cerchio(100, 0, 5, 106, 0, 5, i.flag, i.IX1, i.IY1, i.IX2, i.IY2);
    FAIL() << "the ordinate 4 is no abscissa of the second circle";
  } catch (const RuntimeError& errore) {
    EXPECT_EQ(errore.number(), 5);
  }
  EXPECT_EQ(i.flag, 1);
}

TEST(Cerchi, ThroughThreePoints) {
  double Xc = -1, Yc = -2, R = -3;
  cerchio_per_tre_punti(15, 10, 10, 15, 5, 10, Xc, Yc, R);
  EXPECT_DOUBLE_EQ(Xc, 10);
  EXPECT_DOUBLE_EQ(Yc, 10);
  EXPECT_DOUBLE_EQ(R, 5);
}

// A small circle keeps its digits wherever it lies.
TEST(Cerchi, FarPointsLoseNothing) {
  for (const double far : {1e3, 1e6, 1e9}) {
    double Xc = 0, Yc = 0, R = 0;
    cerchio_per_tre_punti(far + 5, far, far, far + 5, far - 5, far, Xc, Yc, R);
    EXPECT_EQ(Xc, far);
    EXPECT_EQ(Yc, far);
    EXPECT_EQ(R, 5);
  }
}

TEST(Cerchi, CollinearPointsLeaveTheOutputs) {
  struct Row {
    double p1x, p1y, p2x, p2y, p3x, p3y;
  };
  const Row rows[] = {{0, 0, 1, 1, 2, 2},
                      {11.67647058823529, -1.794117647058826, 15.05, -0.7, 11.67647058823529, -1.794117647058826}};
  for (const Row& r : rows) {
    double Xc = -1, Yc = -2, R = -3;
    cerchio_per_tre_punti(r.p1x, r.p1y, r.p2x, r.p2y, r.p3x, r.p3y, Xc, Yc, R);
    EXPECT_EQ(Xc, -1);
    EXPECT_EQ(Yc, -2);
    EXPECT_EQ(R, -3);
  }
}

}  // namespace
}  // namespace trelvo
