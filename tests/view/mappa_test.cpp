#include "view/mappa.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/programma.h"

namespace trelvo {
namespace {

TEST(Mapping, SmallerFactorWins) {
  LoneDocument p;
  p.doc.surface.resize(8820, 6210);
  impost_rapscala(p.doc, 0, 0, 50, 20);
  EXPECT_DOUBLE_EQ(p.doc.vista.rapscala, 176.4);
  impost_rapscala(p.doc, 0, 0, 10, 20);
  EXPECT_DOUBLE_EQ(p.doc.vista.rapscala, 310.5);
  impost_rapscala(p.doc, 0, 0, 1e300, 1e300);
  EXPECT_GT(p.doc.vista.rapscala, 0);
}

TEST(Mapping, WindowWithoutSizeHasNoScale) {
  LoneDocument p;
  EXPECT_THROW(impost_rapscala(p.doc, 1, 0, 1, 5), RuntimeError);
  EXPECT_THROW(impost_rapscala(p.doc, 0, 5, 1, 5), RuntimeError);
  EXPECT_THROW(impost_rapscala(p.doc, 0, 0, std::numeric_limits<double>::quiet_NaN(), 5), RuntimeError);
  EXPECT_DOUBLE_EQ(p.doc.vista.rapscala, 300);
}

TEST(Mapping, ZeroScaleBecomesTheLeastOne) {
  LoneDocument p;
  const double infinite = std::numeric_limits<double>::infinity();
  impost_rapscala(p.doc, 0, 0, infinite, 5);
  EXPECT_EQ(p.doc.vista.rapscala, 1e-13);
}

TEST(Mapping, DecimalsOfTheStep) {
  const struct {
    float step;
    int decimals;
  } cases[] = {{1, 0},
               {0.5F, 1},
               {0.25F, 2},
               {0.1F, 1},
               {0.001F, 3},
               {0.3F, 1},
               {2.5F, 1},
               {-0.5F, 1},
               {100, 0},
               {0, 0},
               {std::numeric_limits<float>::quiet_NaN(), 0},
               {1e30F, 0}};
  for (const auto& c : cases) {
    LoneDocument p;
    p.doc.imp.passostep = c.step;
    EXPECT_EQ(numero_decimali_steps(p.doc), c.decimals) << c.step;
  }
  for (const float step : {1e-30F, 1.0F / 3, std::numeric_limits<float>::denorm_min()}) {
    LoneDocument p;
    p.doc.imp.passostep = step;
    EXPECT_GT(numero_decimali_steps(p.doc), 5) << step;  // and it ends
  }
}

TEST(Mapping, ReadoutsRoundOnlyWithTheStep) {
  LoneDocument p;
  p.doc.imp.passostep = 0.001F;
  EXPECT_EQ(coppia_mostrata(p.doc, 2.00049, -0.25), " 2,-.25");
  p.doc.imp.statostep = spento;
  EXPECT_EQ(coppia_mostrata(p.doc, 2.00049, -0.25), " 2.00049,-.25");
}

TEST(Mapping, StepFallsInXAndGoesToTheNearestInY) {
  const struct {
    double x, y, step_x, step_y;
  } cases[] = {{2.9, 2.9, 2, 3}, {-0.1, -0.1, -1, 0}, {2, 2.5, 2, 3}, {-2.5, -2.5, -3, -2}};
  for (const auto& c : cases) {
    LoneDocument p;
    auto x = static_cast<float>(c.x * 300);
    auto y = static_cast<float>(c.y * 300);
    arrotonda_allo_step(p.doc, x, y);
    EXPECT_FLOAT_EQ(x, static_cast<float>(c.step_x * 300)) << c.x;
    EXPECT_FLOAT_EQ(y, static_cast<float>(c.step_y * 300)) << c.y;
  }
}

TEST(Mapping, OrthoReplacesXOnATie) {
  const struct { double x, y, ortho_x, ortho_y; } cases[] = {{3, 2, 3, 0}, {2, 3, 0, 3}, {2, 2, 0, 2}, {-5, 1, -5, 0}};
  for (const auto& c : cases) {
    LoneDocument p;
    double x = c.x;
    double y = c.y;
    vincola_orto(p.doc, 0, 0, x, y);
    EXPECT_EQ(x, c.x);
    p.doc.imp.statoorto = acceso;
    vincola_orto(p.doc, 0, 0, x, y);
    EXPECT_EQ(x, c.ortho_x);
    EXPECT_EQ(y, c.ortho_y);
  }
}

}  // namespace
}  // namespace trelvo
