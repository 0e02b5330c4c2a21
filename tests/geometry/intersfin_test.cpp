#include "geometry/intersfin.h"

#include <gtest/gtest.h>

#include <vector>

#include "casi.h"
#include "geometry/angoli.h"
#include "geometry/cerchi.h"
#include "geometry/infin.h"
#include "geometry/rette.h"

namespace trelvo {
namespace {

// --- The same decisions by their plain steps, every side of every edge tested --------------------------------------

bool nella(finestra f, double x, double y) { return detPinRettangolo(x, y, f.x1, f.y1, f.x2, f.y2); }

std::vector<finestra> lati(const finestra& f) {
  return {{f.x1, f.y1, f.x2, f.y1}, {f.x1, f.y2, f.x2, f.y2}, {f.x1, f.y1, f.x1, f.y2}, {f.x2, f.y1, f.x2, f.y2}};
}

bool incrocia(const finestra& f, double xi, double yi, double xf, double yf) {
  for (const finestra& l : lati(f)) {
    double x = 0, y = 0;
    std::int16_t flag = 0;
    detinters_segmenti(l.x1, l.y1, l.x2, l.y2, xi, yi, xf, yf, x, y, flag);
    if (flag == 1) return true;
  }
  return false;
}

bool spezzata(const finestra& f, const std::vector<vertice>& v, bool chiusa) {
  for (const vertice& p : v) {
    if (nella(f, p.x, p.y)) return true;
  }
  for (std::size_t i = 1; i < v.size(); ++i) {
    if (incrocia(f, v[i - 1].x, v[i - 1].y, v[i].x, v[i].y)) return true;
  }
  return chiusa && !v.empty() && incrocia(f, v.back().x, v.back().y, v.front().x, v.front().y);
}

template <class Accetta>
bool cerchio_sui_lati(const finestra& f, double xc, double yc, double r, Accetta accetta) {
  for (const finestra& l : lati(f)) {
    double IX1 = 0, IY1 = 0, IX2 = 0, IY2 = 0;
    std::int16_t flag1 = 0, flag2 = 0;
    detinters_cerchio_segmento(xc, yc, r, l.x1, l.y1, l.x2, l.y2, IX1, IY1, IX2, IY2, flag1, flag2);
    if ((flag1 == 1 && accetta(IX1, IY1)) || (flag2 == 1 && accetta(IX2, IY2))) return true;
  }
  return false;
}

bool cerchio(const finestra& f, double xc, double yc, double r) {
  return nella(f, xc + r, yc) || cerchio_sui_lati(f, xc, yc, r, [](double, double) { return true; });
}

bool arco(const finestra& f, const vertice& a, const vertice& b, const vertice& c) {
  if (nella(f, a.x, a.y) || nella(f, b.x, b.y) || nella(f, c.x, c.y)) return true;
  double xc = 0, yc = 0, r = 0;
  cerchio_per_tre_punti(a.x, a.y, b.x, b.y, c.x, c.y, xc, yc, r);
  return cerchio_sui_lati(f, xc, yc, r,
                          [&](double x, double y) { return detPinArco(x, y, xc, yc, a.x, a.y, b.x, b.y); });
}

bool riquadro(const finestra& f, const riquadro_testo& r) {
  for (int i = 0; i < 4; ++i) {
    if (nella(f, r.x[i], r.y[i])) return true;
  }
  for (const auto& [a, b] : {std::pair{0, 1}, std::pair{3, 2}, std::pair{0, 3}, std::pair{1, 2}}) {
    if (incrocia(f, r.x[a], r.y[a], r.x[b], r.y[b])) return true;
  }
  return incrocia(f, (r.x[0] + r.x[3]) / 2, (r.y[0] + r.y[3]) / 2, (r.x[1] + r.x[2]) / 2, (r.y[1] + r.y[2]) / 2);
}

// --- Equal results -------------------------------------------------------------------------------------------------

constexpr int prove = 60000;

finestra finestra_a_caso(Casi& casi) { return finestra::ordinata(casi.x(), casi.y(), casi.x(), casi.y()); }

struct Conto {
  int veri = 0;
  int falsi = 0;
  void segna(bool esito) { ++(esito ? veri : falsi); }
  // Both answers must have come up, or the comparison says little.
  ~Conto() {
    EXPECT_GT(veri, prove / 50);
    EXPECT_GT(falsi, prove / 50);
  }
};

TEST(IntersezioneVeloce, Lines) {
  Casi casi(11);
  Conto conto;
  for (int i = 0; i < prove; ++i) {
    casi.nuovo();
    const finestra f = finestra_a_caso(casi);
    const vertice a{casi.x(), casi.y()}, b{casi.x(), casi.y()};
    const bool atteso = nella(f, a.x, a.y) || nella(f, b.x, b.y) || incrocia(f, a.x, a.y, b.x, b.y);
    ASSERT_EQ(lineaintersfin(f, a.x, a.y, b.x, b.y), atteso) << i;
    conto.segna(atteso);
  }
}

TEST(IntersezioneVeloce, OpenAndClosedOutlines) {
  Casi casi(12);
  Conto conto;
  for (int i = 0; i < prove; ++i) {
    casi.nuovo();
    const finestra f = finestra_a_caso(casi);
    std::vector<vertice> v(static_cast<std::size_t>(casi.intero(5)));
    for (vertice& p : v) p = {casi.x(), casi.y()};
    ASSERT_EQ(polilineaintersfin(f, v), spezzata(f, v, false)) << i;
    ASSERT_EQ(superficieintersfin(f, v), spezzata(f, v, true)) << i;
    conto.segna(superficieintersfin(f, v));
  }
}

TEST(IntersezioneVeloce, Circles) {
  Casi casi(13);
  Conto conto;
  for (int i = 0; i < prove; ++i) {
    casi.nuovo();
    const finestra f = finestra_a_caso(casi);
    const double xc = casi.x(), yc = casi.y();
    // Every third circle touches a side as nearly as numbers allow.
    const double r = i % 3 == 0 ? f.x1 - xc : casi.lunghezza();
    ASSERT_EQ(cerchiointersfin(f, xc, yc, r), cerchio(f, xc, yc, r)) << i;
    conto.segna(cerchio(f, xc, yc, r));
  }
}

TEST(IntersezioneVeloce, Arcs) {
  Casi casi(14);
  Conto conto;
  for (int i = 0; i < prove; ++i) {
    casi.nuovo();
    const finestra f = finestra_a_caso(casi);
    const vertice a{casi.x(), casi.y()}, b{casi.x(), casi.y()}, c{casi.x(), casi.y()};
    ASSERT_EQ(arcointersfin(f, a.x, a.y, b.x, b.y, c.x, c.y), arco(f, a, b, c)) << i;
    conto.segna(arco(f, a, b, c));
  }
}

TEST(IntersezioneVeloce, Texts) {
  Casi casi(15);
  Conto conto;
  for (int i = 0; i < prove; ++i) {
    casi.nuovo();
    const finestra f = finestra_a_caso(casi);
    const riquadro_testo r =
        vertici_testo(casi.x(), casi.y(), casi.lunghezza(), casi.lunghezza(), casi.intero(3) * 45 + casi.intero(2));
    ASSERT_EQ(testointersfin(f, r), riquadro(f, r)) << i;
    conto.segna(riquadro(f, r));
  }
}

// --- The rules of each class ---------------------------------------------------------------------------------------

constexpr finestra quadro{10, 10, 20, 20};

TEST(Intersezione, Line) {
  struct Row {
    double xi, yi, xf, yf;
    bool esito;
  };
  const Row rows[] = {{0, 15, 30, 15, true}, {0, 0, 30, 30, true},  {12, 12, 13, 13, true}, {0, 0, 10, 10, true},
                      {0, 25, 25, 0, true},  {0, 19, 19, 0, false}, {0, 5, 30, 5, false},   {25, 0, 25, 30, false},
                      {12, 30, 12, 0, true}, {30, 20, 0, 20, true}};
  for (const Row& r : rows) EXPECT_EQ(lineaintersfin(quadro, r.xi, r.yi, r.xf, r.yf), r.esito) << r.xi << ' ' << r.yi;
}

TEST(Intersezione, OutlinesCountFillsDoNot) {
  const std::vector<vertice> intorno = {{0, 0}, {30, 0}, {30, 30}, {0, 30}};
  EXPECT_FALSE(superficieintersfin(quadro, intorno));
  const std::vector<vertice> chiusura = {{0, 15}, {0, 30}, {30, 30}, {30, 15}};
  EXPECT_TRUE(superficieintersfin(quadro, chiusura));
  EXPECT_FALSE(polilineaintersfin(quadro, chiusura));
}

TEST(Intersezione, CircleIsInsideByItsRightmostPoint) {
  EXPECT_TRUE(cerchiointersfin(quadro, 15, 15, 2));
  EXPECT_TRUE(cerchiointersfin(quadro, 5, 15, 5));
  EXPECT_TRUE(cerchiointersfin(quadro, 15, 15, 6));
  EXPECT_FALSE(cerchiointersfin(quadro, 15, 15, 60));
  EXPECT_FALSE(cerchiointersfin(quadro, 15, 0, 9));
}

TEST(Intersezione, ArcIsTakenByTheSpanOfItsEnds) {
  // Circle about (15, 0) of radius 12, which reaches to y = 12; first end at the left.
  EXPECT_TRUE(arcointersfin(quadro, 3, 0, 27, 0, 15, 12));
  EXPECT_FALSE(arcointersfin(quadro, 27, 0, 3, 0, 15, -12));
  EXPECT_FALSE(arcointersfin(quadro, 0, 0, 1, 1, 2, 2));
}

TEST(Intersezione, TextHasAMiddleLine) {
  const riquadro_testo largo = vertici_testo(0, 0, 40, 30, 0);
  EXPECT_TRUE(testointersfin(quadro, largo));
  EXPECT_FALSE(testointersfin({10, 16, 20, 20}, largo));
  EXPECT_TRUE(testointersfin({10, 10, 20, 15}, largo));
  // A window about the line's end alone, in the middle of the edge, meets that edge.
  EXPECT_TRUE(testointersfin({-1, 14, 1, 16}, largo));
}

TEST(InFinestra, EveryTestPointMustBeInside) {
  EXPECT_TRUE(lineainfin(quadro, 10, 20, 20, 10));
  EXPECT_FALSE(lineainfin(quadro, 10, 20, 20, 9.99));
  EXPECT_TRUE(cerchioinfin(quadro, 15, 15, 5));
  EXPECT_FALSE(cerchioinfin(quadro, 15, 15, 5.01));
  EXPECT_TRUE(arcoinfin(quadro, 10, 15, 20, 15, 15, 20));
  EXPECT_TRUE(arcoinfin(quadro, 10, 15, 11, 16, 10, 17));
  EXPECT_FALSE(arcoinfin(quadro, 10, 15, 20, 15, 15, 21));
  EXPECT_TRUE(testoinfin(quadro, vertici_testo(11, 12, 5, 2, 0)));
  EXPECT_FALSE(testoinfin(quadro, vertici_testo(11, 12, 5, 2, 90)));
  EXPECT_TRUE(verticiinfin(quadro, std::vector<vertice>{{10, 10}, {20, 20}, {15, 15}}));
  EXPECT_FALSE(verticiinfin(quadro, std::vector<vertice>{{10, 10}, {20, 20}, {15, 25}}));
  EXPECT_TRUE(lineainfin(finestra::ordinata(20, 10, 10, 20), 10, 20, 20, 10));
}

}  // namespace
}  // namespace trelvo
