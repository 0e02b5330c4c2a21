#include <gtest/gtest.h>

#include <cmath>

#include "support/programma.h"
#include "support/shapes.h"
#include "view/anteprima_modifica.h"
#include "view/pittura.h"

namespace trelvo {
namespace {

const char* const commands[] = {"Sposta", "Copia", "Stira", "Ruota", "Specchio"};

banda band(double ax, double ay, double bx, double by) {
  banda b;
  b.ax = ax;
  b.ay = ay;
  b.bx = bx;
  b.by = by;
  b.DX = bx - ax;
  b.DY = by - ay;
  return b;
}

// Two of each class, the second selected and marked, on a kept picture with something in it.
struct Preview : LoneDocument {
  Preview() {
    for (const double dx : {0.0, 20.0}) {
      add(doc, surface({{10 + dx, 15}, {20 + dx, 15}, {12 + dx, 25}})).campitura = 4;
      add(doc, line(10 + dx, 5, 14 + dx, 25));
      add(doc, rectangle(10 + dx, 5, 17 + dx, 9));
      add(doc, text(9 + dx, 15, "words"));
      add(doc, circle(10 + dx, 20, 5));
      add(doc, arc({6 + dx, 13}, {14 + dx, 13}, {10 + dx, 15}));
      add(doc, polyline({{5 + dx, 10}, {15 + dx, 20}, {19 + dx, 20}}));
    }
    visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(doc.dis,
                                                                           [&](auto& o) { disegna(doc, o, true); });
    mark(doc.dis.collSuperfici(2), 3);
    mark(doc.dis.collRettangoli(2), 1);
    mark(doc.dis.collPolilinee(2), 2);
    doc.dis.collLinee(2).vert2_selez = 1;
    doc.dis.collArchi(2).vert1_selez = 1;
    visita<superficie, Linea, Rettangolo, testo, Cerchio, Arco, polilinea>(
        doc.dis, [n = 0](auto& o) mutable { o.stato = ++n % 2 == 0 ? stato_selezionato : stato_presente; });
    doc.surface.set_AutoRedraw(false);
  }
  template <class Outline>
  static void mark(Outline& o, int i) {
    o.ins_vertselez(1, i);
  }
};

TEST(Preview, PaintsTheSelectionOnlyAfterClearing) {
  for (const char* command : commands) {
    Preview p;
    Calls calls(p.doc);
    anteprima_modifica(p.doc, command, band(1, 2, 4, 6));
    EXPECT_EQ(calls.classes(), "-SLRTCAP") << command;
  }
  Preview p;
  Calls calls(p.doc);
  anteprima_modifica(p.doc, "Cancella", band(1, 2, 4, 6));
  EXPECT_EQ(calls.classes(), "");
}

TEST(Preview, LeavesNoTrace) {
  Preview p;
  const std::string objects = told(p.doc.dis);
  const std::vector<std::uint32_t> picture = p.doc.surface.Image().pixels;
  bool shown = false;
  for (int i = 0; i < 1000; ++i) {
    anteprima_modifica(p.doc, commands[i % 5], band(10, 10, 10 + 7 * std::cos(i), 10 + 5 * std::sin(i)));
    shown = shown || p.doc.surface.screen().pixels != picture;
  }
  EXPECT_TRUE(shown);
  EXPECT_EQ(told(p.doc.dis), objects);
  EXPECT_EQ(p.doc.surface.Image().pixels, picture);
  p.doc.surface.Cls();
  EXPECT_EQ(p.doc.surface.screen().pixels, picture);
  p.doc.surface.set_AutoRedraw(true);
  EXPECT_EQ(p.doc.surface.screen().pixels, picture);
}

// What a preview paints, against the same object painted where it should show.
template <class Object>
void expect_shown(const char* command, const banda& b, Object source, const Object& wanted) {
  LoneDocument p;
  std::vector<std::string> expected{"Cls"};
  {
    Calls calls(p.doc);
    disegna(p.doc, wanted, true);
    expected.insert(expected.end(), calls.lines.begin(), calls.lines.end());
  }
  source.stato = stato_selezionato;
  add(p.doc, source);
  Calls calls(p.doc);
  anteprima_modifica(p.doc, command, b);
  EXPECT_EQ(calls.lines, expected) << command;
}

TEST(Preview, ObjectsInTheirNewPlace) {
  const banda b = band(1, 2, 4, 6);
  for (const char* command : {"Sposta", "Copia"}) {
    expect_shown(command, b, line(5, 5, 9, 5), line(8, 9, 12, 9));
    expect_shown(command, b, circle(5, 5, 2), circle(8, 9, 2));
    expect_shown(command, b, text(5, 5, "a"), text(8, 9, "a"));
    expect_shown(command, b, arc({1, 3}, {9, 3}, {5, 5}), arc({4, 7}, {12, 7}, {8, 9}));
    expect_shown(command, b, rectangle(0, 0, 3, 4), rectangle(3, 4, 6, 8));
  }
  // A quarter turn about (10, 10), a mirror at its vertical.
  testo turned = text(10, 15, "a");
  turned.ang_testo(-90);
  expect_shown("Ruota", band(10, 10, 10, 20), text(15, 10, "a"), [&] {
    testo t = turned;
    t.ang_testo(270);  // not brought back below a full turn
    return t;
  }());
  expect_shown("Ruota", band(10, 10, 10, 20), surface({{15, 10}, {20, 10}, {20, 14}}),
               surface({{10, 15}, {10, 20}, {6, 20}}));
  expect_shown("Ruota", band(10, 10, 10, 20), circle(15, 10, 2), circle(10, 15, 2));
  expect_shown("Specchio", band(10, 0, 10, 5), polyline({{5, 5}, {8, 9}}), polyline({{15, 5}, {12, 9}}));
  expect_shown("Specchio", band(10, 0, 10, 5), text(5, 5, "a"), text(15, 5, "a"));
  // Its ends do not change places here.
  expect_shown("Specchio", band(10, 0, 10, 5), arc({9, 3}, {1, 3}, {5, 1}), arc({19, 3}, {11, 3}, {15, 1}));
}

TEST(Preview, StretchMovesMarkedPoints) {
  const banda b = band(0, 0, 1, 2);
  polilinea pol = polyline({{5, 5}, {9, 5}, {9, 9}});
  pol.ins_vertselez(1, 2);
  expect_shown("Stira", b, pol, polyline({{5, 5}, {10, 7}, {9, 9}}));
  Linea lin = line(5, 5, 9, 5);
  lin.vert1_selez = 1;
  expect_shown("Stira", b, lin, line(6, 7, 9, 5));
  expect_shown("Stira", b, circle(5, 5, 2), circle(6, 7, 2));
  expect_shown("Stira", b, text(5, 5, "a"), text(6, 7, "a"));

  // The third point of an arc goes along with both ends only.
  Arco half = arc({15, 10}, {5, 10}, {10, 5});
  half.vert1_selez = 1;
  expect_shown("Stira", b, half, arc({16, 12}, {5, 10}, {10, 5}));
  half.vert2_selez = 1;
  expect_shown("Stira", b, half, arc({16, 12}, {6, 12}, {11, 7}));
  // Turned over by the stretch, its ends change places.
  Arco flat = arc({15, 10}, {5, 10}, {10, 9});
  flat.vert1_selez = 1;
  expect_shown("Stira", band(0, 0, 0, -20), flat, arc({5, 10}, {15, -10}, {10, 9}));
}

TEST(Preview, RotationTellsItsAngle) {
  const struct {
    double x, y;
    const char* text;
  } cases[] = {{20, 10, " 0"}, {10, 20, " 90"}, {0, 10, " 180"}, {10, 0, " 270"}, {10, 10, " 0"}};
  for (const auto& c : cases) {
    Preview p;
    anteprima_modifica(p.doc, "Ruota", band(10, 10, c.x, c.y));
    EXPECT_EQ(p.bas.frmMain.Text2.Text.get(), c.text);
  }
}

}  // namespace
}  // namespace trelvo
