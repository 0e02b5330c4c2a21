#include "geometry/mira.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "casi.h"
#include "geometry/cerchi.h"
#include "geometry/intersfin.h"
#include "platform/runtime_error.h"

namespace trelvo {
namespace {

bool segmento(double X, double Y, double R, const vertice& a, const vertice& b) {
  double IX1 = 0, IY1 = 0, IX2 = 0, IY2 = 0;
  std::int16_t flag1 = 0, flag2 = 0;
  detinters_cerchio_segmento(X, Y, R, a.x, a.y, b.x, b.y, IX1, IY1, IX2, IY2, flag1, flag2);
  return flag1 == 1 || flag2 == 1;
}

TEST(MiraVeloce, SegmentsAsByThePlainSteps) {
  Casi casi(21);
  int colpiti = 0;
  for (int i = 0; i < 200000; ++i) {
    casi.nuovo();
    const double X = casi.x(), Y = casi.y();
    vertice a{casi.x(), casi.y()}, b{casi.x(), casi.y()};
    // Nearly level and nearly upright lines carry the largest rounding errors.
    if (i % 4 == 0) b.x = a.x * (1 + casi.reale() * std::pow(10, -casi.intero(15)));
    if (i % 4 == 1) b.y = a.y * (1 + casi.reale() * std::pow(10, -casi.intero(15)));
    const double R = i % 5 == 0 ? std::fabs(a.x - X) * (1 - 1e-12 * casi.reale()) : casi.lunghezza() / 10;
    const bool atteso = segmento(X, Y, R, a, b);
    ASSERT_EQ(segmento_in_mira(X, Y, R, a.x, a.y, b.x, b.y), atteso) << i;
    colpiti += atteso ? 1 : 0;
  }
  EXPECT_GT(colpiti, 2000);
}

TEST(Mira, MustCrossTheOutline) {
  EXPECT_TRUE(segmento_in_mira(5, 0.5, 1, 0, 0, 10, 0));
  EXPECT_FALSE(segmento_in_mira(5, 1.5, 1, 0, 0, 10, 0));
  EXPECT_TRUE(segmento_in_mira(5, 5.2, 1, 0, 0, 10, 10));
  EXPECT_FALSE(segmento_in_mira(5, 0, 1, 4.9, 0, 5.1, 0));
  EXPECT_FALSE(cerchio_in_mira(5, 5, 1, 5, 5.2, .5));
  EXPECT_TRUE(cerchio_in_mira(10, 5.5, .4, 10, 10, 4.5));
  EXPECT_FALSE(cerchio_in_mira(10, 10.1, .4, 10, 10, 4.5));
}

TEST(Mira, FirstEdgeOfAnOutline) {
  const std::vector<vertice> v = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  struct Row {
    double X, Y;
    bool chiusa;
    bool esito;
    std::size_t lato;
  };
  const Row rows[] = {{5, 0, true, true, 0},   {10, 5, true, true, 1}, {10, 10, true, true, 1}, {0, 5, true, true, 3},
                      {0, 5, false, false, 9}, {0, 0, true, true, 0},  {5, 5, true, false, 9}};
  for (const Row& r : rows) {
    std::size_t lato = 9;
    EXPECT_EQ(spezzata_in_mira(r.X, r.Y, .5, v, r.chiusa, lato), r.esito) << r.X << ' ' << r.Y;
    EXPECT_EQ(lato, r.lato) << r.X << ' ' << r.Y;
  }
  std::size_t lato = 9;
  EXPECT_FALSE(spezzata_in_mira(0, 0, 1, {}, true, lato));
}

TEST(Mira, TextByItsBoxAndMiddleLine) {
  const riquadro_testo r = vertici_testo(0, 0, 20, 10, 0);
  std::size_t lato = 9;
  EXPECT_TRUE(testo_in_mira(10, 5, .5, r));
  EXPECT_FALSE(riquadro_in_mira(10, 5, .5, r, lato));
  EXPECT_TRUE(riquadro_in_mira(0, 5, .5, r, lato));
  EXPECT_EQ(lato, 3U);
  EXPECT_FALSE(testo_in_mira(10, 2.5, .5, r));
  EXPECT_FALSE(testo_in_mira(10, 5, 50, r));
}

// Turning leaves edges a last digit away from upright or level.
TEST(Mira, TurnedOutlinesAreFoundWhereTheyAre) {
  Casi casi(5);
  for (int i = 0; i < 4000; ++i) {
    const double angolo = (1 + casi.intero(3)) * std::acos(0.0);
    const double c = std::cos(angolo);
    const double s = std::sin(angolo);
    const double px = 100 * casi.reale(), py = 100 * casi.reale();
    const double lungo = 1 + 20 * casi.reale();
    const vertice a{px, py};
    const vertice b = i % 2 == 0 ? vertice{px + lungo * c, py + lungo * s} : vertice{px - lungo * s, py + lungo * c};
    const double t = 0.1 + 0.8 * casi.reale();
    const double mx = a.x + (b.x - a.x) * t, my = a.y + (b.y - a.y) * t;
    ASSERT_TRUE(segmento_in_mira(mx + 0.02, my - 0.02, 0.05, a.x, a.y, b.x, b.y)) << i;
    ASSERT_FALSE(segmento_in_mira(mx + 0.06, my - 0.06, 0.05, a.x, a.y, b.x, b.y)) << i;
    ASSERT_TRUE(incrocia_lati({mx - 0.03, my - 0.03, mx + 0.05, my + 0.05}, a.x, a.y, b.x, b.y)) << i;
    ASSERT_FALSE(incrocia_lati({mx + 0.01, my + 0.01, mx + 0.05, my + 0.05}, a.x, a.y, b.x, b.y)) << i;
  }
}

TEST(Mira, CircleNearlyLevelWithThePick) {
  const double sopra = std::nextafter(10.0, 11.0);
  EXPECT_TRUE(cerchio_in_mira(105.2, sopra, .5, 100, 10, 5));
  for (const double X : {80.0, 101.0, 106.0, 300.0}) EXPECT_FALSE(cerchio_in_mira(X, sopra, .5, 100, 10, 5)) << X;
}

TEST(Mira, CircleNeedsNoCrossingPoint) {
  // Level with the centre the crossing points do not exist, and the flag alone decides.
  EXPECT_TRUE(cerchio_in_mira(105, 10, .5, 100, 10, 5));
  EXPECT_TRUE(cerchio_in_mira(95, 10, .5, 100, 10, 5));
  EXPECT_FALSE(cerchio_in_mira(103, 10, .5, 100, 10, 5));
}

TEST(Mira, ConcentricApertureHitsTheCircle) { EXPECT_TRUE(cerchio_in_mira(100, 10, .5, 100, 10, 5)); }

TEST(Mira, ArcByTheSpanOfItsEnds) {
  // The upper half of the circle about (0, 0) of radius 5; its ends are level, the left one first.
  EXPECT_TRUE(arco_in_mira(3, 4.01, .3, -5, 0, 5, 0, 0, 5));
  EXPECT_FALSE(arco_in_mira(3, 3, .3, -5, 0, 5, 0, 0, 5));
  // Both ends above: with the higher one first the whole circle is taken, with the lower one first nothing.
  EXPECT_TRUE(arco_in_mira(.5, 5, .4, -3, 4, 4, 3, 0, 5));
  EXPECT_TRUE(arco_in_mira(.5, -5, .4, -3, 4, 4, 3, 0, 5));
  EXPECT_FALSE(arco_in_mira(.5, 5, .4, 4, 3, -3, 4, 0, 5));
  EXPECT_FALSE(arco_in_mira(1, 1, .4, 0, 0, 1, 1, 2, 2));
}

TEST(Mira, ArcLevelWithItsCentreIsNoError) { EXPECT_FALSE(arco_in_mira(105, 10, .5, 95, 10, 105, 10, 100, 15)); }

}  // namespace
}  // namespace trelvo
