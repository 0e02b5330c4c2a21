#include "edit/edit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/programma.h"
#include "support/shapes.h"

namespace trelvo {
namespace {

struct Edit : LoneDocument {
  Edit() { aggiungi_modifiche(bas); }

  template <class Object>
  Object& selected(Object o) {
    o.stato = stato_selezionato;
    return add(doc, o);
  }
  // What the engine does with a command and its points.
  int run(const char* command, double x1 = 0, double y1 = 0, double x2 = 0, double y2 = 0) {
    reccomando& r = doc.cmd.corrente();
    r.tipo(command);
    r.x1 = x1;
    r.y1 = y1;
    r.x2 = x2;
    r.y2 = y2;
    int counter = 0;
    for (const auto& edit : bas.modifiche) edit(doc, doc.cmd.livello, counter);
    return counter;
  }
  std::string objects() const { return told(doc.dis); }
};

std::string told_alone(const auto& o) {
  Telling telling;
  telling(o);
  return telling.words;
}

void expect_arc(const Arco& o, vertice p1, vertice p2, vertice p3) {
  EXPECT_NEAR(o.p1x, p1.x, 1e-9);
  EXPECT_NEAR(o.p1y, p1.y, 1e-9);
  EXPECT_NEAR(o.p2x, p2.x, 1e-9);
  EXPECT_NEAR(o.p2y, p2.y, 1e-9);
  EXPECT_NEAR(o.p3x, p3.x, 1e-9);
  EXPECT_NEAR(o.p3y, p3.y, 1e-9);
}

TEST(Edit, OneRoutineAClassInTheirOrder) {
  Edit e;
  e.selected(surface({{0, 0}, {1, 0}, {0, 1}}));
  e.selected(line(0, 0, 1, 1));
  e.selected(rectangle(0, 0, 1, 1));
  e.selected(text(0, 0, "a"));
  e.selected(circle(0, 0, 1));
  e.selected(arc({1, 0}, {0, 1}, {-1, 0}));
  e.selected(polyline({{0, 0}, {1, 1}}));
  e.doc.cmd.corrente().tipo("Cancella");
  const disegno& dis = e.doc.dis;
  const std::int16_t* states[] = {&dis.collSuperfici(1).stato, &dis.collLinee(1).stato,  &dis.collRettangoli(1).stato,
                                  &dis.collTesti(1).stato,     &dis.collCerchi(1).stato, &dis.collArchi(1).stato,
                                  &dis.collPolilinee(1).stato};
  ASSERT_EQ(e.bas.modifiche.size(), std::size(states));
  for (std::size_t i = 0; i < std::size(states); ++i) {
    EXPECT_EQ(*states[i], stato_selezionato) << i;
    int counter = 0;
    e.bas.modifiche[i](e.doc, 1, counter);
    EXPECT_EQ(*states[i], stato_cancellato) << i;
    EXPECT_EQ(counter, 1) << i;
  }
}

TEST(Edit, OnlySelectedObjects) {
  for (const char* command : {"Cancella", "Sposta", "Copia", "Stira", "Ruota", "Specchio"}) {
    Edit e;
    add(e.doc, line(1, 2, 3, 4)).vert1_selez = 1;
    add(e.doc, circle(1, 2, 3)).stato = stato_cancellato;
    const std::string before = e.objects();
    EXPECT_EQ(e.run(command, 1, 1, 30, 5), 0) << command;
    EXPECT_EQ(e.objects(), before) << command;
  }
}

TEST(Edit, PropertiesAreNoneOfTheseSteps) {
  Edit e;
  e.selected(line(1, 2, 3, 4));
  const std::string before = e.objects();
  EXPECT_EQ(e.run("Proprietà Oggetto"), 0);
  EXPECT_EQ(e.objects(), before);
}

TEST(Edit, TooFarOrTooMuchChangesNothing) {
  const double far = std::numeric_limits<double>::max();
  for (const char* command : {"Sposta", "Copia", "Stira", "Specchio", "Ruota"}) {
    Edit e;
    e.selected(line(1, 2, 3, 4)).vert1_selez = 1;
    const std::string before = e.objects();
    EXPECT_THROW(e.run(command, -far, 0, far, 0), RuntimeError) << command;
    EXPECT_EQ(e.objects(), before) << command;
  }
}

TEST(Edit, DeletingOnlyMarks) {
  Edit e;
  e.selected(line(1, 2, 3, 4));
  add(e.doc, line(1, 2, 3, 4));
  EXPECT_EQ(e.run("Cancella"), 1);
  EXPECT_EQ(e.doc.dis.collLinee.numero(), 2U);
  EXPECT_EQ(e.doc.dis.collLinee(1).stato, stato_cancellato);
  EXPECT_EQ(e.doc.dis.collLinee(2).stato, stato_presente);
}

// ---- copies

TEST(Copy, TakesTheLookAndNotTheRest) {
  Edit e;
  Linea l = line(1, 2, 3, 4);
  l.Layer = "L";
  l.stampare = 1;
  l.vert1_selez = 1;
  l.colorelinea = 5;
  l.speslinea = 6;
  l.TipoLinea = 2;
  const Linea& source = e.selected(l);
  e.run("Copia", 0, 0, 10, 20);
  ASSERT_EQ(e.doc.dis.collLinee.numero(), 2U);
  const Linea& copy = e.doc.dis.collLinee(2);
  Linea wanted = line(11, 22, 13, 24);
  wanted.colorelinea = 5;
  wanted.speslinea = 6;
  wanted.TipoLinea = 2;
  EXPECT_EQ(told_alone(copy), told_alone(wanted));
  EXPECT_EQ(copy.Layer, "");
  l.stato = stato_presente;
  EXPECT_EQ(told_alone(source), told_alone(l));
}

TEST(Copy, ArcWithItsOutline) {
  for (const char* command : {"Copia", "Specchio"}) {
    Edit e;
    Arco a = arc({1, 0}, {0, 1}, {-1, 0});
    a.colcont = 3;
    a.spescont = 4;
    a.trattcont = 1;
    a.vert2_selez = 1;
    a.stampare = 1;
    e.selected(a);
    e.run(command, 0, 0, 1, 0);
    const Arco& copy = e.doc.dis.collArchi(2);
    EXPECT_EQ(copy.colcont, 3);
    EXPECT_EQ(copy.spescont, 4);
    EXPECT_EQ(copy.trattcont, 1);
    EXPECT_EQ(copy.vert2_selez, 0);
    EXPECT_EQ(copy.stampare, 0);
  }
}

template <class Closed>
void expect_filled_copy(Closed o) {
  for (const char* command : {"Copia", "Specchio"}) {
    Edit e;
    o.campitura = 4;
    o.colocampitura = 5;
    o.colcont = 6;
    o.spescont = 7;
    o.trattcont = 2;
    o.perimet = 1234;  // taken as they are
    o.supf = 4321;
    o.stampare = 1;
    e.selected(o);
    e.run(command, 0, 0, 1, 0);
    const Closed& copy = collezione_di<Closed>(e.doc.dis)(2);
    EXPECT_EQ(copy.campitura, 4);
    EXPECT_EQ(copy.colocampitura, 5);
    EXPECT_EQ(copy.colcont, 6);
    EXPECT_EQ(copy.spescont, 7);
    EXPECT_EQ(copy.trattcont, 2);
    EXPECT_EQ(copy.perimet, 1234);
    EXPECT_EQ(copy.supf, 4321);
    EXPECT_EQ(copy.stampare, 0);
  }
}

TEST(Copy, ClosedFiguresWithFillAndMeasures) {
  expect_filled_copy(surface({{0, 0}, {1, 0}, {0, 1}}));
  expect_filled_copy(rectangle(0, 0, 1, 1));
  expect_filled_copy(circle(0, 0, 1));
}

TEST(Copy, VerticesWithoutMarksNorBitmap) {
  Edit e;
  superficie s = surface({{0, 0}, {4, 0}, {0, 3}});
  s.ins_vertselez(1, 2);
  s.hBmp = 9;
  e.selected(s);
  e.run("Copia", 0, 0, 1, 1);
  EXPECT_EQ(told_alone(e.doc.dis.collSuperfici(2)), told_alone([] {
              superficie wanted = surface({{1, 1}, {5, 1}, {1, 4}});
              wanted.perimet = 12;
              return wanted;
            }()));
  EXPECT_EQ(e.doc.dis.collSuperfici(2).hBmp, 0);
}

TEST(Copy, TextSlantsAsItsSourceIsBold) {
  const struct { std::int16_t bold, italic; } cases[] = {{vero, falso}, {falso, vero}};
  for (const auto& c : cases) {
    for (const char* command : {"Copia", "Specchio"}) {
      Edit e;
      testo t = text(1, 2, "words");
      t.bold_testo = c.bold;
      t.corsivo_testo(c.italic);
      t.barrato_testo = vero;
      t.sottolineato_testo = vero;
      t.opaco_testo = vero;
      t.colore_testo = 11;
      t.colore_opaco_testo = 12;
      t.nCartesto = 5;
      t.ang_testo(33);
      e.selected(t);
      e.run(command, 0, 0, 1, 0);
      const testo& copy = e.doc.dis.collTesti(2);
      EXPECT_EQ(copy.bold_testo, c.bold);
      EXPECT_EQ(copy.inclinato(), c.bold);
      EXPECT_EQ(copy.barrato_testo, vero);
      EXPECT_EQ(copy.sottolineato_testo, vero);
      EXPECT_EQ(copy.opaco_testo, vero);
      EXPECT_EQ(copy.colore_testo, 11);
      EXPECT_EQ(copy.colore_opaco_testo, 12);
      EXPECT_EQ(copy.nCartesto, 0);
      EXPECT_EQ(copy.ang_testo(), 33);
      EXPECT_EQ(copy.stringa_testo, "words");
      EXPECT_EQ(copy.carattere_testo(), t.carattere_testo());
    }
  }
}

// ---- mirror

TEST(Mirror, CopiesAndKeepsTheSource) {
  Edit e;
  e.selected(polyline({{5, 5}, {8, 9}, {7, 7}}));
  EXPECT_EQ(e.run("Specchio", 10, 3, 10, 8), 1);
  ASSERT_EQ(e.doc.dis.collPolilinee.numero(), 2U);
  EXPECT_EQ(e.doc.dis.collPolilinee(1).vertici.preleva(1), (vertice{5, 5}));
  const auto image = e.doc.dis.collPolilinee(2).vertici.tutti();
  EXPECT_NEAR(image[0].x, 15, 1e-9);  // the order of the vertices is not turned round
  EXPECT_NEAR(image[1].x, 12, 1e-9);
  EXPECT_NEAR(image[2].x, 13, 1e-9);
}

TEST(Mirror, AxesInEveryDirection) {
  const struct {
    double dx, dy, x, y;
  } cases[] = {{1, 0, 3, -4},  {-1, 0, 3, -4},  {0, 1, -3, 4},   {0, -1, -3, 4}, {1, 1, 4, 3},
               {-1, -1, 4, 3}, {1, -1, -4, -3}, {-1, 1, -4, -3}, {0, 0, -3, 4}};  // without an axis, the vertical one
  for (const auto& c : cases) {
    Edit e;
    e.selected(text(10 + 3, 20 + 4, "a"));
    e.run("Specchio", 10, 20, 10 + c.dx, 20 + c.dy);
    EXPECT_NEAR(e.doc.dis.collTesti(2).pos_testox, 10 + c.x, 1e-9) << c.dx << ' ' << c.dy;
    EXPECT_NEAR(e.doc.dis.collTesti(2).pos_testoy, 20 + c.y, 1e-9) << c.dx << ' ' << c.dy;
  }
}

TEST(Mirror, ArcChangesItsEnds) {
  Edit e;
  e.selected(arc({9, 3}, {1, 3}, {5, 1}));
  e.run("Specchio", 10, 0, 10, 5);
  expect_arc(e.doc.dis.collArchi(2), {19, 3}, {11, 3}, {15, 1});
  expect_arc(e.doc.dis.collArchi(1), {9, 3}, {1, 3}, {5, 1});
}

// ---- circles

TEST(Circles, RimPointComesBackToTheRight) {
  const struct {
    const char* command;
    double x1, y1, x2, y2, x, y;
    std::size_t position;
  } cases[] = {{"Sposta", 0, 0, 5, 6, 15, 16, 1},
               {"Stira", 0, 0, 5, 6, 15, 16, 1},
               {"Copia", 0, 0, 5, 6, 15, 16, 2},
               {"Ruota", 0, 0, 90, 0, -10, 10, 1},
               {"Specchio", 0, 0, 1, 0, 10, -10, 2}};
  for (const auto& c : cases) {
    Edit e;
    Cerchio o = circle(10, 10, 3);
    o.Xpunto = 10;
    o.YPunto = 13;
    e.selected(o);
    e.run(c.command, c.x1, c.y1, c.x2, c.y2);
    const Cerchio& result = e.doc.dis.collCerchi(c.position);
    EXPECT_NEAR(result.Xcentro, c.x, 1e-9) << c.command;
    EXPECT_NEAR(result.Ycentro, c.y, 1e-9) << c.command;
    EXPECT_EQ(result.Xpunto, result.Xcentro + 3) << c.command;
    EXPECT_EQ(result.YPunto, result.Ycentro) << c.command;
    EXPECT_EQ(result.raggio, 3) << c.command;
  }
}

// ---- texts

TEST(Texts, AngleTurnsTheOtherWay) {
  const struct {
    double x, y, degrees;
    int angle;
  } cases[] = {{10, 0, 90, 20 - 90},   {10, 0, 30, 20 - 30},   {10, 0, -30, 20 + 30},
               {10, 0, 180, 20 + 180}, {10, 0, 120, 20 + 240}, {10, 0, 30.6, 20 - 31},
               {10, 0, 0, 20},         {0, 0, 45, 20 + 90},    {0, 0, 180, 20 + 90}};
  for (const auto& c : cases) {
    Edit e;
    testo t = text(5 + c.x, 5 + c.y, "a");
    t.ang_testo(20);
    e.selected(t);
    e.run("Ruota", 5, 5, c.degrees);
    EXPECT_EQ(e.doc.dis.collTesti(1).ang_testo(), c.angle) << c.x << ' ' << c.degrees;
  }
}

TEST(Texts, StretchMovesThemWhole) {
  Edit e;
  e.selected(text(1, 2, "a"));
  e.run("Stira", 0, 0, 10, 20);
  EXPECT_EQ(e.doc.dis.collTesti(1).pos_testox, 11);
  EXPECT_EQ(e.doc.dis.collTesti(1).pos_testoy, 22);
}

// ---- rotation

TEST(Rotation, FromXTowardsY) {
  const struct {
    double px, py, degrees, x, y;
  } cases[] = {{10, 0, 90, 0, 10},  {10, 0, -90, 0, -10},
               {0, -10, 90, 10, 0}, {0, 10, 45, -10 * std::sqrt(0.5), 10 * std::sqrt(0.5)},
               {0, 0, 33, 0, 0},    {-3, -4, 720 + 180, 3, 4}};
  for (const auto& c : cases) {
    Edit e;
    e.selected(line(7 + c.px, 8 + c.py, 7, 8));
    e.run("Ruota", 7, 8, c.degrees);
    const Linea& o = e.doc.dis.collLinee(1);
    EXPECT_NEAR(o.Xi, 7 + c.x, 1e-9) << c.degrees;
    EXPECT_NEAR(o.Yi, 8 + c.y, 1e-9) << c.degrees;
    EXPECT_EQ(o.Xf, 7);  // the centre stays
    EXPECT_EQ(o.Yf, 8);
  }
}

TEST(Rotation, RectangleStaysOneAndKeepsItsMeasures) {
  Edit e;
  e.selected(rectangle(0, 0, 4, 3)).supf = 99;
  e.run("Ruota", 0, 0, 30);
  const Rettangolo& o = e.doc.dis.collRettangoli(1);
  EXPECT_EQ(o.vertic(), 4);
  EXPECT_EQ(o.supf, 99);
  EXPECT_NEAR(o.vertici.preleva(2).y / o.vertici.preleva(2).x, std::sqrt(1.0 / 3), 1e-12);
}

// ---- stretch

TEST(Stretch, MarkedEndsOfLines) {
  Edit e;
  Linea l = line(1, 1, 5, 5);
  l.vert2_selez = 1;
  e.selected(l);
  e.run("Stira", 0, 0, 10, 20);
  EXPECT_EQ(told_alone(e.doc.dis.collLinee(1)), told_alone(line(1, 1, 15, 25)));
}

TEST(Stretch, ClosedFiguresAreMeasuredAnew) {
  Edit e;
  Rettangolo r = rectangle(0, 0, 4, 3);
  r.ins_vertselez(1, 2);
  r.ins_vertselez(1, 3);
  r.supf = 0;
  e.selected(r);
  superficie s = surface({{0, 0}, {4, 0}, {0, 3}});
  s.perimet = 0;  // no mark: measured all the same
  s.supf = 0;
  e.selected(s);
  e.run("Stira", 0, 0, 4, 0);
  EXPECT_EQ(told_alone(e.doc.dis.collRettangoli(1)), told_alone(rectangle(0, 0, 8, 3)));
  EXPECT_EQ(e.doc.dis.collSuperfici(1).perimet, 12);
  EXPECT_EQ(e.doc.dis.collSuperfici(1).supf, 6);
}

TEST(Stretch, ThirdPointGoesWithEitherEnd) {
  for (const bool first : {true, false}) {
    Edit e;
    Arco a = arc({5, 10}, {15, 10}, {10, 15});
    (first ? a.vert1_selez : a.vert2_selez) = 1;
    e.selected(a);
    e.run("Stira", 0, 0, 1, 0);
    const Arco& o = e.doc.dis.collArchi(1);
    expect_arc(o, {first ? 6.0 : 5.0, 10}, {first ? 15.0 : 16.0, 10}, {11, 15});
    EXPECT_EQ(o.vert1_selez, 0);
    EXPECT_EQ(o.vert2_selez, 0);
  }
}

TEST(Stretch, SecondArcMovesFromTheCentreOfTheFirst) {
  Edit e;
  Arco a = arc({5, 10}, {15, 10}, {10, 15});
  a.vert1_selez = 1;
  a.vert2_selez = 1;
  e.selected(a);
  e.selected(arc({5, 10}, {15, 10}, {10, 15}));  // without a mark it leaves no centre
  e.selected(a);
  e.run("Stira", 0, 0, 1, 2);
  expect_arc(e.doc.dis.collArchi(1), {6, 12}, {16, 12}, {11, 17});
  expect_arc(e.doc.dis.collArchi(2), {5, 10}, {15, 10}, {10, 15});
  // The centre of the first is (11, 12): this one goes by (1, 2) - (11, 12).
  expect_arc(e.doc.dis.collArchi(3), {-5, 0}, {5, 0}, {0, 5});
}

TEST(Stretch, ArcWithoutACentreLeavesThePointOfTheCommand) {
  Edit e;
  Arco straight = arc({0, 0}, {4, 4}, {2, 2});
  straight.vert1_selez = 1;
  straight.vert2_selez = 1;
  e.selected(straight);
  e.selected(straight);
  e.run("Stira", 0, 0, 10, 0);
  EXPECT_EQ(e.doc.dis.collArchi(2).p3x, 12);
}

TEST(Stretch, ArcTurnedOverChangesItsEnds) {
  Edit e;
  Arco a = arc({15, 10}, {5, 10}, {10, 9});
  a.vert1_selez = 1;
  e.selected(a);
  e.run("Stira", 0, 0, 0, 20);
  // p1 and p3 went down by 20: the run from p1 to p2 no longer holds p3.
  expect_arc(e.doc.dis.collArchi(1), {5, 10}, {15, 30}, {10, 29});
}

}  // namespace
}  // namespace trelvo
