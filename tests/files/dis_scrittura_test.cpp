#include <gtest/gtest.h>

#include "test_drawing.h"
#include "test_files.h"

namespace trelvo {
namespace {

TEST(DisScrittura, HeaderSlotBySlot) {
  testatadis t{1, 2, 4, 3, 2, {15, false}, {5, true}, "ON", 0.5F, "OFF", 2};
  std::string expected = test_header();
  put(expected, 970, std::int16_t{2});
  put(expected, 1452, std::int16_t{5});
  put(expected, 1454, 5.0);
  reccomando scratch;
  EXPECT_EQ(bytes_of({}, scratch, t), expected);
}

TEST(DisScrittura, EveryClassInItsOrder) {
  disegno dis;
  testo t;
  t.carattere_testo("Arial");
  t.stringa_testo = "perché";
  t.pos_testox = 21;
  t.pos_testoy = 22;
  t.dimens_testo = 12.5F;
  t.ang_testo(-30);
  t.colore_testo = 7;
  t.colore_opaco_testo = 8;
  t.barrato_testo = t.opaco_testo = vero;
  t.sottolineato_testo = vero;
  dis.collTesti.aggiungi(t);

  auto r = with_vertices<Rettangolo>(4);
  r.colcont = 1;
  r.colocampitura = 2;
  r.trattcont = 3;
  r.campitura = 4;
  r.spescont = 5;
  dis.collRettangoli.aggiungi(r);

  Cerchio c;
  c.Xcentro = 1.5;
  c.Ycentro = 2.5;
  c.Xpunto = 3.5;
  c.YPunto = 4.5;
  c.colcont = 11;
  c.colocampitura = 12;
  c.trattcont = 13;
  c.campitura = 14;
  c.spescont = 15;
  dis.collCerchi.aggiungi(c);

  Arco a;
  a.p1x = 1;
  a.p1y = 2;
  a.p2x = 3;
  a.p2y = 4;
  a.p3x = 5;
  a.p3y = 6;
  a.colcont = 21;
  a.trattcont = 22;
  a.spescont = 23;
  dis.collArchi.aggiungi(a);

  auto p = with_vertices<polilinea>(3);
  p.colcont = 31;
  p.trattcont = 32;
  p.spescont = 33;
  dis.collPolilinee.aggiungi(p);
  dis.collPolilinee.aggiungi(with_vertices<polilinea>(0));

  auto s = with_vertices<superficie>(4);
  s.colcont = 41;
  s.colocampitura = 42;
  s.trattcont = 43;
  s.campitura = 44;
  s.spescont = 45;
  dis.collSuperfici.aggiungi(s);

  Linea l;
  l.Xi = 1;
  l.Yi = 2;
  l.Xf = 3;
  l.Yf = 4;
  l.colorelinea = 51;
  l.TipoLinea = 52;
  l.speslinea = 53;
  l.stato = stato_selezionato;
  dis.collLinee.aggiungi(l);
  l.stato = stato_cancellato;
  dis.collLinee.aggiungi(l);

  const std::string expected = TestRecord("Linea", 9).p1(1, 2).p2(3, 4).look(51, 0, 52, 0, 53).byte +
                               TestRecord("Superficie", 4).p1(1, 10).p2(2, 20).p3(3, 30).look(41, 42, 43, 44, 45).byte +
                               TestRecord("ContinuaSuperficie", 4).p1(4, 40).byte +
                               TestRecord("Polilinea", 3).p1(1, 10).p2(2, 20).p3(3, 30).look(31, 0, 32, 0, 33).byte +
                               TestRecord("Arco", 3).p1(1, 2).p2(3, 4).p3(5, 6).look(21, 0, 22, 0, 23).byte +
                               TestRecord("Cerchio", 3).p1(1.5, 2.5).p2(3.5, 4.5).look(11, 12, 13, 14, 15).byte +
                               TestRecord("Rettangolo", 3).p1(1, 10).p2(2, 20).p3(3, 30).look(1, 2, 3, 4, 5).byte +
                               TestRecord("ContinuaRettangolo", 3).p1(4, 40).byte +
                               TestRecord("Testo", 3)
                                   .p1(21, 22)
                                   .p2(1, 0)
                                   .p3(0, 1)
                                   .look(7, 8, 1, -30, 12.5F)
                                   .text(std::string_view("Arial\0", 6), "perch\xE9")
                                   .byte;
  reccomando scratch;
  scratch.nvertici = 9;
  EXPECT_EQ(bytes_of(dis, scratch).substr(lunghezza_testata), expected);
  EXPECT_EQ(scratch.tipo(), "Testo");
  EXPECT_EQ(scratch.x1, 21);
  EXPECT_EQ(scratch.y3, 1);
  EXPECT_EQ(scratch.nvertici, 3);
}

TEST(DisScrittura, RecordsByVertexCount) {
  const struct {
    int vertici;
    std::size_t record;
  } cases[] = {{0, 0}, {1, 1}, {2, 1}, {3, 1}, {4, 2}, {6, 2}, {7, 3}, {32767, 10923}};
  for (const auto& c : cases) {
    disegno dis;
    dis.collPolilinee.aggiungi(with_vertices<polilinea>(c.vertici));
    EXPECT_EQ(records_of(dis).size(), c.record * lunghezza_slot) << c.vertici;
  }
}

TEST(DisScrittura, FlagsAndLongTexts) {
  const struct {
    const char* name;
    void (*imposta)(testo&);
    double x2, y2, x3, y3;
    int tratto;
  } cases[] = {
      {"strikeout", [](testo& t) { t.barrato_testo = vero; }, 1, 0, 0, 0, 0},
      {"bold", [](testo& t) { t.bold_testo = vero; }, 0, 1, 1, 0, 0},  // and read back as the italic flag
      {"italic", [](testo& t) { t.corsivo_testo(vero); }, 0, 0, 0, 0, 0},
      {"opaque", [](testo& t) { t.opaco_testo = vero; }, 0, 0, 0, 1, 0},
      {"underline", [](testo& t) { t.sottolineato_testo = vero; }, 0, 0, 0, 0, 1},
      {"one is not true", [](testo& t) { t.opaco_testo = t.barrato_testo = t.sottolineato_testo = 1; }, 0, 0, 0, 0, 0},
  };
  for (const auto& c : cases) {
    testo t;
    t.stringa_testo = std::string(120, 'x');
    c.imposta(t);
    disegno dis;
    dis.collTesti.aggiungi(t);
    EXPECT_EQ(records_of(dis), TestRecord("Testo", 0)
                                   .p2(c.x2, c.y2)
                                   .p3(c.x3, c.y3)
                                   .look(0, 0, c.tratto, 0, 0)
                                   .text("", std::string(100, 'x'))
                                   .byte)
        << c.name;
  }
}

}  // namespace
}  // namespace trelvo
