#include "geometry/misure.h"

#include <gtest/gtest.h>

#include <vector>

#include "geometry/pigreco.h"
#include "geometry/riquadro_testo.h"

namespace trelvo {
namespace {

TEST(Misure, ClosedOutlines) {
  struct Row {
    std::vector<vertice> vertici;
    double perimetro;
    double area;
  };
  const Row rows[] = {
      {{}, 0, 0},
      {{{5, 5}}, 0, 0},
      {{{0, 0}, {3, 4}}, 10, 0},
      {{{0, 0}, {3, 0}, {3, 4}}, 12, 6},
      {{{3, 4}, {3, 0}, {0, 0}}, 12, 6},
      {{{10, 10}, {10, 20}, {30, 20}, {30, 10}}, 60, 200},
      {{{0, 0}, {2, 2}, {2, 0}, {0, 2}}, 4 + 4 * std::sqrt(2), 0},
  };
  for (const Row& r : rows) {
    EXPECT_DOUBLE_EQ(perimetro(r.vertici), r.perimetro);
    EXPECT_DOUBLE_EQ(area(r.vertici), r.area);
  }
}

TEST(Misure, Circle) {
  const misure_cerchio m = misure_di_cerchio(1, 1, 4, 5);
  EXPECT_DOUBLE_EQ(m.raggio, 5);
  EXPECT_DOUBLE_EQ(m.perimet, 10 * pigreco);
  EXPECT_DOUBLE_EQ(m.supf, 25 * pigreco);
  EXPECT_EQ(misure_di_cerchio(1, 1, 1, 1).supf, 0);
}

TEST(RiquadroTesto, TurnsAgainstTheDirections) {
  const riquadro_testo r = vertici_testo(10, 20, 8, 2, 90);
  const double x[] = {10, 10, 12, 12};
  const double y[] = {20, 12, 12, 20};
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(r.x[i], x[i], 1e-12) << i;
    EXPECT_NEAR(r.y[i], y[i], 1e-12) << i;
  }
  const riquadro_testo dritto = vertici_testo(1, 2, 8, 2, 0);
  EXPECT_EQ(dritto.x[2], 9);
  EXPECT_EQ(dritto.y[2], 4);
}

}  // namespace
}  // namespace trelvo
