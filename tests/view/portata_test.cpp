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
      const riquadro reach = portata_di(doc, o);
      const vertice origin = place_of(o);
      for (int k = 0; k < 12; ++k) {
        pick(o, reach, k % 2 == 0 ? shapes.near(origin) : vertice{shapes.at(), shapes.beside(origin.y)});
        window(o, reach, shapes.near(k % 2 == 0 ? origin : shapes.spot()));
      }
    }
  }

  void pick(const Object& o, const riquadro& reach, const vertice& p) {
    const mira m{p.x, p.y, shapes.unit() * std::pow(10.0, shapes.real(-6, 1))};
    if (!a_portata(m) || !in_mira(doc, o, m)) return;
    ++hits;
    ASSERT_TRUE(reach.tocca(zona_di(m))) << told_one(o) << m.X << ' ' << m.Y << ' ' << m.R;
  }

  void window(const Object& o, const riquadro& reach, const vertice& corner) {
    const vertice other = shapes.near(corner);
    const finestra f = finestra::ordinata(corner.x, corner.y, other.x, other.y);
    if (!a_portata(f) || !interseca(doc, o, f)) return;
    ++crossings;
    ASSERT_TRUE(reach.tocca(riquadro::intorno(f.x1, f.y1, f.x2, f.y2)))
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
};

constexpr int rounds = 3000;

template <class Object>
void expect_in_reach() {
  unsigned seed = 0;
  for (const double unit : {1.0, 1e-3, 1e4, 1e-20, 1e15}) {
    Reach<Object> r(++seed, unit);
    r.expect_reached(rounds);
    EXPECT_GT(r.hits, rounds / 20) << unit;
    EXPECT_GT(r.crossings, rounds / 20) << unit;
  }
}

TEST(Reach, HoldsWhateverATestAccepts) {
  expect_in_reach<Linea>();
  expect_in_reach<Cerchio>();
  expect_in_reach<Arco>();
  expect_in_reach<polilinea>();
  expect_in_reach<Rettangolo>();
  expect_in_reach<superficie>();
}

TEST(Reach, HoldsTextsAtEveryScale) {
  Reach<testo> r(1, 1);
  r.expect_reached(rounds);
  EXPECT_GT(r.hits, 0);
  EXPECT_GT(r.crossings, 0);
}

TEST(Reach, OfOneThatIsNowhere) {
  LoneDocument p;
  EXPECT_TRUE(portata_di(p.doc, line(std::nan(""), 0, 1, 1)).contiene(riquadro::ovunque()));
  EXPECT_TRUE(portata_di(p.doc, polyline({})).contiene(riquadro::ovunque())) << "inside of any window";
  const riquadro in_line = portata_di(p.doc, arc({10, 10}, {20, 20}, {15, 15}));
  EXPECT_TRUE(in_line.tocca(riquadro::intorno(0, 0, 0, 0))) << "its circle is a point at the origin";
  EXPECT_FALSE(in_line.tocca(riquadro::intorno(30, 30, 40, 40)));
}

}  // namespace
}  // namespace trelvo
