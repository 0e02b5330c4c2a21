#include "view/selezione.h"

#include <gtest/gtest.h>

#include <functional>

#include "model/tavolozza.h"
#include "support/programma.h"
#include "support/shapes.h"
#include "view/pittura.h"

namespace trelvo {
namespace {

// One object of each class, the outline of each crossing the pick circle about (20, 15), which has a radius of 0.25.
struct Heap : LoneDocument {
  Heap() {
    doc.cmd.corrente().tipo("Sposta");
    add(doc, surface({{10, 15}, {30, 15}, {20, 25}}));
    add(doc, line(20, 5, 20, 25));
    add(doc, rectangle(20, 5, 30, 25));
    add(doc, text(19, 15, "longer"));
    add(doc, circle(20, 20, 5));
    add(doc, arc({16, 13}, {24, 13}, {20, 15}));
    add(doc, polyline({{15, 10}, {25, 20}, {30, 20}}));
  }
  void fin(double x1, double y1, double x2, double y2) { selezfin(doc, x1, y1, x2, y2); }
  void inters(double x1, double y1, double x2, double y2) { selezinters(doc, x1, y1, x2, y2); }
  void stira(double x1, double y1, double x2, double y2) { selezintersStira(doc, x1, y1, x2, y2); }
};

TEST(Selection, RadiusFollowsTheZoom) {
  LoneDocument p;
  EXPECT_DOUBLE_EQ(raggio_mira(p.doc), 0.25);
  p.doc.vista.rapscala = 150;
  EXPECT_DOUBLE_EQ(raggio_mira(p.doc), 0.5);
}

TEST(Selection, EachWayHasItsOrderOfClasses) {
  const struct {
    const char* way;
    std::function<void(Heap&)> select;
    std::string order;
  } cases[] = {{"pick", [](Heap& h) { selezionaoggetti(h.doc, 20, 15); }, "SLRTCAP"},
               {"window", [](Heap& h) { h.fin(-99, -99, 99, 99); }, "SLRTCAP"},
               {"crossing", [](Heap& h) { h.inters(-99, -99, 99, 99); }, "SRLCAPT"},
               {"stretch", [](Heap& h) { h.stira(-99, -99, 99, 99); }, "SSSLRRRRTCAPPP"}};
  for (const auto& c : cases) {
    Heap h;
    Calls calls(h.doc);
    c.select(h);
    EXPECT_EQ(calls.classes(), c.order) << c.way;
    EXPECT_EQ(h.doc.cmd.ntrovati, 7) << c.way;
    EXPECT_EQ(conta_selezionati(h.doc), 7) << c.way;
    EXPECT_EQ(h.desktop.MousePointer, pointer_default) << c.way;
    c.select(h);
    EXPECT_EQ(h.doc.cmd.ntrovati, 7) << c.way << " again";
  }
}

TEST(Selection, DeletedObjectsAreLeftAlone) {
  Heap h;
  visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(h.doc.dis,
                                                                         [](auto& o) { o.stato = stato_cancellato; });
  const std::string before = told(h.doc.dis);
  selezionaoggetti(h.doc, 20, 15);
  h.fin(-99, -99, 99, 99);
  h.doc.cmd.ultimocomando = "Zoom Tutto";
  h.inters(-99, -99, 99, 99);
  h.stira(-99, -99, 99, 99);
  EXPECT_EQ(told(h.doc.dis), before);
  EXPECT_EQ(h.doc.cmd.ntrovati, 0);
}

TEST(Pick, OutlineMustCrossTheCircle) {
  const struct {
    const char* what;
    std::function<void(distipo&)> put;
    double x, y;
    int found;
  } cases[] = {
      {"line beside", [](distipo& d) { add(d, line(0, 5, 10, 5)); }, 5, 5.3, 0},
      {"line in reach", [](distipo& d) { add(d, line(0, 5, 10, 5)); }, 5, 5.2, 1},
      {"line inside the circle", [](distipo& d) { add(d, line(5, 5, 5.1, 5)); }, 5, 5, 0},
      {"circle inside the circle", [](distipo& d) { add(d, circle(5, 5, 0.1)); }, 5, 5, 0},
      {"circle by its rim", [](distipo& d) { add(d, circle(5, 5, 3)); }, 8.1, 5, 1},
      {"circle by its inside", [](distipo& d) { add(d, circle(5, 5, 3)); }, 5.5, 5, 0},
      {"circle by its very centre", [](distipo& d) { add(d, circle(5, 5, 3)); }, 5, 5, 1},
      {"surface by its middle",
       [](distipo& d) {
         add(d, surface({{0, 0}, {9, 0}, {0, 9}}));
       },
       3, 3, 0},
      {"surface by its closing edge",
       [](distipo& d) {
         add(d, surface({{0, 0}, {9, 0}, {0, 9}}));
       },
       0, 4, 1},
      {"rectangle by its closing edge", [](distipo& d) { add(d, rectangle(0, 0, 9, 9)); }, 0, 4, 1},
      {"polyline has no closing edge",
       [](distipo& d) {
         add(d, polyline({{0, 0}, {9, 0}, {0, 9}}));
       },
       0, 4, 0},
      {"polyline by its last edge",
       [](distipo& d) {
         add(d, polyline({{0, 0}, {9, 0}, {0, 9}}));
       },
       4.5, 4.5, 1},
      {"nothing there", [](distipo&) {}, 1, 1, 0},
  };
  for (const auto& c : cases) {
    LoneDocument p;
    c.put(p.doc);
    selezionaoggetti(p.doc, c.x, c.y);
    EXPECT_EQ(p.doc.cmd.ntrovati, c.found) << c.what;
    EXPECT_EQ(conta_selezionati(p.doc), c.found) << c.what;
  }
}

TEST(Pick, TextByItsBoxAndMiddleLine) {
  LoneDocument p;
  const testo& t = add(p.doc, text(10, 10, "abcdefgh"));
  const riquadro_testo r = riquadro_mondo(p.doc, t);
  const double x = (r.x[0] + r.x[1]) / 2;
  const struct {
    double y;
    int found;
  } cases[] = {{r.y[0], 1}, {r.y[0] * 0.75 + r.y[3] * 0.25, 0}, {(r.y[0] + r.y[3]) / 2, 1}, {r.y[3] + 0.3, 0}};
  for (const auto& c : cases) {
    p.doc.dis.collTesti(1).stato = stato_presente;
    p.doc.cmd.ntrovati = 0;
    selezionaoggetti(p.doc, x, c.y);
    EXPECT_EQ(p.doc.cmd.ntrovati, c.found) << c.y;
  }
}

TEST(Pick, FirstOfAClassShadowsTheOthers) {
  LoneDocument p;
  for (int i = 0; i < 3; ++i) add(p.doc, line(0, 5, 10, 5));
  p.doc.dis.collLinee(1).stato = stato_cancellato;
  for (int i = 0; i < 2; ++i) {
    selezionaoggetti(p.doc, 5, 5);
    EXPECT_EQ(p.doc.cmd.ntrovati, 1);
    EXPECT_EQ(p.doc.dis.collLinee(2).stato, stato_selezionato);
    EXPECT_EQ(p.doc.dis.collLinee(3).stato, stato_presente);
  }
}

TEST(Pick, ShowsTheObjectInTheContrastColour) {
  LoneDocument p;
  add(p.doc, line(0, 5, 10, 5)).colorelinea = rgb(1, 2, 3);
  selezionaoggetti(p.doc, 5, 5);
  EXPECT_EQ(p.doc.surface.Image().pixels[100 * 1000 + 100], pixel_of(tavolozza(p.doc.imp.colorecontrasto.valore)));
}

TEST(Window, CornersComeBackInOrder) {
  using Way = void (*)(distipo&, double&, double&, double&, double&);
  for (const Way way : {Way{selezfin}, Way{selezinters}, Way{selezintersStira}}) {
    LoneDocument p;
    add(p.doc, line(2, 3, 4, 5));
    double x1 = 4;
    double y1 = 5;
    double x2 = 2;
    double y2 = 3;
    way(p.doc, x1, y1, x2, y2);
    EXPECT_EQ(x1, 2);
    EXPECT_EQ(y1, 3);
    EXPECT_EQ(x2, 4);
    EXPECT_EQ(y2, 5);
    EXPECT_EQ(p.doc.cmd.ntrovati, 1);
  }
}

// The window is (0, 0) to (10, 10).
TEST(Window, InsideOrAcrossOrMarked) {
  const struct {
    const char* what;
    std::function<void(distipo&)> put;
    bool inside, across, stretched;
  } cases[] = {
      {"line on the border", [](distipo& d) { add(d, line(0, 0, 10, 10)); }, true, true, true},
      {"line with one end out", [](distipo& d) { add(d, line(5, 5, 15, 5)); }, false, true, true},
      {"line through", [](distipo& d) { add(d, line(-5, 5, 15, 5)); }, false, true, false},
      {"line outside", [](distipo& d) { add(d, line(-5, 11, 15, 11)); }, false, false, false},
      {"circle inside", [](distipo& d) { add(d, circle(5, 5, 5)); }, true, true, true},
      {"circle cut", [](distipo& d) { add(d, circle(-2, 5, 5)); }, false, true, true},
      {"circle around", [](distipo& d) { add(d, circle(5, 5, 20)); }, false, false, false},
      {"arc bulging out",
       [](distipo& d) {
         add(d, arc({2, 1}, {8, 1}, {2.5, 0}));
       },
       true, true, true},
      {"arc by its third point",
       [](distipo& d) {
         add(d, arc({-5, 5}, {15, 5}, {5, 8}));
       },
       false, true, false},
      {"surface around",
       [](distipo& d) {
         add(d, surface({{-9, -9}, {40, -9}, {-9, 40}}));
       },
       false, false, false},
      {"surface with an edge across",
       [](distipo& d) {
         add(d, surface({{-9, 5}, {40, 5}, {9, 40}}));
       },
       false, true, false},
      {"rectangle with a corner in", [](distipo& d) { add(d, rectangle(5, 5, 15, 15)); }, false, true, true},
      {"polyline inside",
       [](distipo& d) {
         add(d, polyline({{1, 1}, {2, 9}, {9, 9}}));
       },
       true, true, true},
      {"polyline without its closing edge",
       [](distipo& d) {
         add(d, polyline({{-1, 5}, {-1, 20}, {20, 20}}));
       },
       false, false, false},
      {"text anchored outside", [](distipo& d) { add(d, text(-3, 4, "abcde")); }, false, true, true},
      {"text inside", [](distipo& d) { add(d, text(1, 2, "abc")); }, true, true, true},
  };
  for (const auto& c : cases) {
    const auto selected = [&](const std::function<void(Heap&)>& select) {
      Heap h;
      h.doc.dis = {};
      c.put(h.doc);
      select(h);
      EXPECT_EQ(h.doc.cmd.ntrovati, conta_selezionati(h.doc));
      return h.doc.cmd.ntrovati == 1;
    };
    EXPECT_EQ(selected([](Heap& h) { h.fin(10, 0, 0, 10); }), c.inside) << c.what;
    EXPECT_EQ(selected([](Heap& h) { h.inters(0, 10, 10, 0); }), c.across) << c.what;
    EXPECT_EQ(selected([](Heap& h) { h.stira(0, 0, 10, 10); }), c.stretched) << c.what;
  }
}

TEST(Crossing, PrintAreaMarksWithoutSelecting) {
  Heap h;
  h.doc.cmd.corrente().tipo("Selstamp");
  h.doc.dis.collLinee(1).stato = stato_selezionato;
  Calls calls(h.doc);
  h.inters(-99, -99, 99, 99);
  EXPECT_EQ(h.doc.dis.collLinee(1).stampare, 0);  // selected ones are passed over
  EXPECT_EQ(h.doc.dis.collArchi(1).stampare, 1);
  EXPECT_EQ(h.doc.dis.collArchi(1).stato, stato_presente);
  EXPECT_EQ(h.doc.cmd.ntrovati, 0);
  EXPECT_EQ(calls.classes(), "");

  for (const char* zoom : {"Zoom Dinamico", "Zoom Tutto", "Zoom %", "Zoom Prec."}) {
    h.doc.dis.collLinee(1).stampare = 0;
    h.doc.cmd.ultimocomando = zoom;
    h.inters(-99, -99, 99, 99);
    EXPECT_EQ(h.doc.dis.collLinee(1).stampare, 1) << zoom;
  }
  h.doc.dis.collLinee(1).stampare = 0;
  h.doc.cmd.ultimocomando = "Zoom Area";
  h.inters(-99, -99, 99, 99);
  EXPECT_EQ(h.doc.dis.collLinee(1).stampare, 0);
}

TEST(Crossing, WithoutACommandSelectsUnseen) {
  Heap h;
  h.doc.cmd.corrente().tipo("");
  Calls calls(h.doc);
  h.inters(-99, -99, 99, 99);
  EXPECT_EQ(conta_selezionati(h.doc), 7);
  EXPECT_EQ(calls.classes(), "");
}

TEST(StretchSelection, MarksWhatLiesInside) {
  Heap h;
  h.doc.dis = {};
  add(h.doc, line(0, 0, 20, 0));
  add(h.doc, arc({20, 0}, {0, 0}, {10, 5}));
  add(h.doc, rectangle(0, 0, 20, 20));
  add(h.doc, polyline({{1, 1}, {20, 1}, {2, 2}}));
  h.stira(-1, -1, 10, 10);
  const disegno& dis = h.doc.dis;
  EXPECT_EQ(dis.collLinee(1).vert1_selez, 1);
  EXPECT_EQ(dis.collLinee(1).vert2_selez, 0);
  EXPECT_EQ(dis.collArchi(1).vert1_selez, 0);
  EXPECT_EQ(dis.collArchi(1).vert2_selez, 1);
  const auto marks = [](const auto& o) {
    std::string all;
    for (int i = 1; i <= o.vertic(); ++i) all += std::to_string(o.prel_vertselez(i));
    return all;
  };
  EXPECT_EQ(marks(dis.collRettangoli(1)), "1000");
  EXPECT_EQ(marks(dis.collPolilinee(1)), "101");

  h.stira(15, -1, 25, 10);  // a second window adds to the first
  EXPECT_EQ(dis.collLinee(1).vert1_selez, 1);
  EXPECT_EQ(dis.collLinee(1).vert2_selez, 1);
  EXPECT_EQ(marks(dis.collRettangoli(1)), "1100");
  EXPECT_EQ(marks(dis.collPolilinee(1)), "111");
  EXPECT_EQ(h.doc.cmd.ntrovati, 4);
}

TEST(StretchSelection, PaintsInTheColourOfTheOldState) {
  Heap h;
  h.doc.dis = {};
  add(h.doc, line(0, 0, 20, 0)).colorelinea = 77;
  const Color contrast = tavolozza(h.doc.imp.colorecontrasto.valore);
  Calls calls(h.doc);
  h.stira(-1, -1, 10, 10);
  h.stira(-1, -1, 10, 10);
  ASSERT_EQ(calls.lines.size(), 2U);
  EXPECT_NE(calls.lines[0].find("color=77 "), std::string::npos);
  EXPECT_NE(calls.lines[1].find("color=" + std::to_string(contrast) + " "), std::string::npos);
}

}  // namespace
}  // namespace trelvo
