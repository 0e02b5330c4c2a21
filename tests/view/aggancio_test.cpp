#include "view/aggancio.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/programma.h"
#include "support/shapes.h"
#include "view/pittura.h"

namespace trelvo {
namespace {

struct Snap : LoneDocument {
  void at(int filter, double x, double y) {
    doc.filtro.filtroattivo = filter;
    doc.filtro.trovatofiltro = 0;
    selezoggettifiltri(doc, x, y);
  }
  void expect(double x, double y, const std::string& what) {
    EXPECT_EQ(doc.filtro.trovatofiltro, 1) << what;
    EXPECT_NEAR(doc.filtro.xfiltro, x, 1e-9) << what;
    EXPECT_NEAR(doc.filtro.yfiltro, y, 1e-9) << what;
  }
};

// Every outline crosses (20, 15); once the first hit is deleted, the next class shows.
TEST(Snap, ClassesInTheirOrder) {
  Snap s;
  superficie& sup = add(s.doc, surface({{10, 15}, {30, 15}, {20, 25}}));
  Linea& lin = add(s.doc, line(20, 5, 20, 26));
  Rettangolo& ret = add(s.doc, closed<Rettangolo>({{20, 6}, {20, 27}, {30, 27}, {30, 6}}));
  testo& tes = add(s.doc, text(19, 15, "longer"));
  const riquadro_testo box = riquadro_mondo(s.doc, tes);
  polilinea& pol = add(s.doc, polilinea(polyline({{15, 10}, {26, 21}, {30, 20}})));
  Arco& arco = add(s.doc, arc({16, 13}, {24, 13}, {20, 15}));
  Cerchio& cer = add(s.doc, circle(20, 21, 6));
  const std::string before = told(s.doc.dis);

  const struct {
    const char* what;
    std::int16_t& state;
    vertice start, end, middle;
  } edges[] = {
      {"superficie", sup.stato, {10, 15}, {30, 15}, {20, 15}},
      {"Linea", lin.stato, {20, 5}, {20, 26}, {20, 15.5}},
      {"Rettangolo", ret.stato, {20, 6}, {20, 27}, {20, 16.5}},
      {"testo", tes.stato, {19, 15}, {box.x[1], 15}, {(19 + box.x[1]) / 2, 15}},
      {"polilinea", pol.stato, {15, 10}, {26, 21}, {20.5, 15.5}},
      {"Arco", arco.stato, {16, 13}, {24, 13}, {20, 15}},
  };
  s.at(6, 20, 15);
  s.expect(20, 10, "centre of the arc comes before that of the circle");
  EXPECT_EQ(told(s.doc.dis), before);
  for (const auto& c : edges) {
    s.at(2, 20, 15);
    s.expect(c.start.x, c.start.y, std::string("start of ") + c.what);
    s.at(3, 20, 15);
    s.expect(c.end.x, c.end.y, std::string("end of ") + c.what);
    s.at(4, 20, 15);
    s.expect(c.middle.x, c.middle.y, std::string("middle of ") + c.what);
    c.state = stato_cancellato;
  }
  s.at(6, 20, 15);
  s.expect(20, 21, "centre of the circle");
  for (const int filter : {2, 3, 4}) {
    s.at(filter, 20, 15);
    EXPECT_EQ(s.doc.filtro.trovatofiltro, 0) << "a circle has only its centre";
  }
  cer.stato = stato_cancellato;
  s.at(6, 20, 15);
  EXPECT_EQ(s.doc.filtro.trovatofiltro, 0);
  EXPECT_EQ(s.desktop.MousePointer, pointer_default);
}

TEST(Snap, EdgeHitAndNotTheWholeObject) {
  Snap s;
  add(s.doc, surface({{0, 0}, {9, 0}, {0, 9}}));
  s.at(2, 4.5, 4.5);
  s.expect(9, 0, "second edge");
  s.at(3, 4.5, 4.5);
  s.expect(0, 9, "second edge");
  s.at(2, 0, 5);
  s.expect(0, 0, "the closing edge is turned round");
  s.at(3, 0, 5);
  s.expect(0, 9, "the closing edge is turned round");
}

TEST(Snap, ClosingEdgesOfTheOthers) {
  Snap s;
  add(s.doc, rectangle(0, 0, 9, 9));
  s.at(2, 0, 5);
  s.expect(0, 0, "rectangle, turned round");
  s.doc.dis = {};

  add(s.doc, text(20, 10, "abc"));
  const riquadro_testo r = riquadro_mondo(s.doc, s.doc.dis.collTesti(1));
  s.at(2, r.x[3], (r.y[0] * 3 + r.y[3]) / 4);
  s.expect(r.x[3], r.y[3], "text, from its last corner");
  s.at(3, r.x[3], (r.y[0] * 3 + r.y[3]) / 4);
  s.expect(20, 10, "text, back to its anchor");
  s.at(2, (r.x[0] + r.x[1]) / 2, (r.y[0] + r.y[3]) / 2);
  EXPECT_EQ(s.doc.filtro.trovatofiltro, 0) << "its middle line does not count";
  s.doc.dis = {};

  add(s.doc, polyline({{0, 0}, {9, 0}, {0, 9}}));
  s.at(2, 0, 5);
  EXPECT_EQ(s.doc.filtro.trovatofiltro, 0);
}

TEST(Snap, MiddleOfAnArcLiesOnIt) {
  Snap s;
  add(s.doc, arc({25, 10}, {15, 10}, {20, 5}));  // a half circle: the chord goes through the centre
  s.at(4, 16, 7);
  s.expect(15, 10, "half circle");
  s.doc.dis = {};
  add(s.doc, arc({15, 10}, {20, 15}, {16, 13}));
  s.at(4, 17.5, 10 + 5 * std::sqrt(0.75));
  s.expect(20 - 5 / std::sqrt(2), 10 + 5 / std::sqrt(2), "the other point of the line is not on the arc");
}

TEST(Snap, MissKeepsThePointFromBefore) {
  Snap s;
  add(s.doc, line(0, 0, 10, 0));
  s.at(3, 5, 0);
  s.at(3, 5, 3);
  EXPECT_EQ(s.doc.filtro.trovatofiltro, 0);
  EXPECT_EQ(s.doc.filtro.xfiltro, 10);
  for (const int filter : {0, 1, 5, 6}) {
    s.at(filter, 5, 0);
    EXPECT_EQ(s.doc.filtro.trovatofiltro, 0) << filter;
  }
}

}  // namespace
}  // namespace trelvo
