#include "view/portata.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "geometry/infin.h"
#include "support/programma.h"
#include "support/random_drawing.h"
#include "view/redraw.h"

namespace trelvo {
namespace {

// One object on its own against many picks and windows, near it, far from it and on its level: whatever a test accepts
// lies within the object's reach.
template <class Object>
struct Reach : LoneDocument {
  explicit Reach(unsigned seed, double unit) : shapes(seed, unit, 2000) {}

  void expect_reached(int rounds) {
    for (int i = 0; i < rounds; ++i) {
      Object o;
      shapes.make(o);
      doc.vista.rapscala = std::pow(10.0, shapes.real(-6, 6)) / shapes.unit();
      const portata reach = portata_di(doc, o);
      const vertice origin = place_of(o);
      for (int k = 0; k < 12; ++k) {
        pick(o, reach, k % 2 == 0 ? shapes.near(origin) : vertice{shapes.at(), shapes.beside(origin.y)});
        window(o, reach, shapes.near(k % 2 == 0 ? origin : shapes.spot()));
      }
    }
  }

  void pick(const Object& o, const portata& reach, const vertice& p) {
    const mira m{p.x, p.y, shapes.unit() * std::pow(10.0, shapes.real(-6, 1))};
    if (!a_portata(m) || !in_mira(doc, o, m)) return;
    ++hits;
    const bool row = reach.lontano && reach.lontano->tocca(riga_di(m));
    far += reach.vicino.tocca(zona_di(m)) ? 0 : 1;
    ASSERT_TRUE(reach.vicino.tocca(zona_di(m)) || row) << told_one(o) << m.X << ' ' << m.Y << ' ' << m.R;
  }

  void window(const Object& o, const portata& reach, const vertice& corner) {
    const vertice other = shapes.near(corner);
    const finestra f = finestra::ordinata(corner.x, corner.y, other.x, other.y);
    if (!a_portata(f) || !interseca(doc, o, f)) return;
    ++crossings;
    ASSERT_TRUE(reach.vicino.tocca(riquadro::intorno(f.x1, f.y1, f.x2, f.y2)))
        << told_one(o) << f.x1 << ' ' << f.y1 << ' ' << f.x2 << ' ' << f.y2;
  }

  static vertice place_of(const Object& o) {
    if constexpr (requires { o.Xi; }) {
      return {o.Xi, o.Yi};
    } else if constexpr (requires { o.p1x; }) {
      return {o.p1x, o.p1y};
    } else if constexpr (requires { o.raggio; }) {
      return {o.Xcentro, o.Ycentro};
    } else if constexpr (requires { o.pos_testox; }) {
      return {o.pos_testox, o.pos_testoy};
    } else {
      return o.vertic() == 0 ? vertice{} : o.vertici.preleva(1);
    }
  }
  static std::string told_one(const Object& o) {
    Telling telling;
    telling(o);
    return telling.words;
  }

  RandomShapes shapes;
  int hits = 0;
  int crossings = 0;
  int far = 0;  // hits found by their row alone
};

template <class Object>
int expect_in_reach(int rounds) {
  int far = 0;
  for (const double unit : {1.0, 1e-3, 1e4, 1e-20, 1e15}) {
    Reach<Object> r(static_cast<unsigned>(far) + 1, unit);
    r.expect_reached(rounds);
    EXPECT_GT(r.hits, rounds / 20) << unit;
    EXPECT_GT(r.crossings, rounds / 20) << unit;
    far += r.far;
  }
  return far;
}

constexpr int rounds = 3000;

// Steep edges and circles on the row of the pick are truly found from afar.
TEST(Reach, HoldsWhateverATestAccepts) {
  EXPECT_GT(expect_in_reach<Linea>(rounds), 0);
  EXPECT_GT(expect_in_reach<Cerchio>(rounds), 0);
  EXPECT_EQ(expect_in_reach<Arco>(rounds), 0);
  EXPECT_GT(expect_in_reach<polilinea>(rounds), 0);
  EXPECT_GT(expect_in_reach<Rettangolo>(rounds), 0);
  EXPECT_GT(expect_in_reach<superficie>(rounds), 0);
}

TEST(Reach, HoldsTextsAtEveryScale) {
  Reach<testo> r(1, 1);
  r.expect_reached(rounds);
  EXPECT_GT(r.hits, 0);
  EXPECT_GT(r.crossings, 0);
}

TEST(Reach, OfOneThatIsNowhere) {
  LoneDocument p;
  EXPECT_TRUE(portata_di(p.doc, line(std::nan(""), 0, 1, 1)).vicino.contiene(riquadro::ovunque()));
  EXPECT_TRUE(portata_di(p.doc, polyline({})).vicino.contiene(riquadro::ovunque())) << "inside of any window";
  const portata in_line = portata_di(p.doc, arc({10, 10}, {20, 20}, {15, 15}));
  EXPECT_TRUE(in_line.vicino.tocca(riquadro::intorno(0, 0, 0, 0))) << "its circle is a point at the origin";
  EXPECT_FALSE(in_line.vicino.tocca(riquadro::intorno(30, 30, 40, 40)));
}

}  // namespace
}  // namespace trelvo
