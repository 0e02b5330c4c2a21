#include "files/dxf_scrittura.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <random>

#include "files/dxf_numeri.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "support/shapes.h"

namespace trelvo {
namespace {

std::string written(double value) {
  std::array<char, numero_piu_lungo> to{};
  return {to.data(), scrivi_numero(to.data(), value)};
}

std::string dxf_of(disegno& dis, double ymaxdis) {
  std::string all;
  scrivi_dxf(dis, ymaxdis, [&](std::span<const std::byte> data) {
    all.append(reinterpret_cast<const char*>(data.data()), data.size());
  });
  return all;
}

// The lines between the start and the end, with bars for line ends.
template <class Class>
std::string entities(Class object, double ymaxdis = 100) {
  disegno dis;
  collezione_di<Class>(dis).aggiungi(std::move(object));
  std::string all = dxf_of(dis, ymaxdis);
  std::replace(all.begin(), all.end(), '\n', '|');
  const std::string start = "0|SECTION|2|ENTITIES|";
  const std::string end = " 0 |ENDSEC| 0 |EOF|";
  EXPECT_TRUE(all.starts_with(start) && all.ends_with(end)) << all;
  return all.substr(start.size(), all.size() - start.size() - end.size());
}

TEST(DxfNumeri, Formats) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {59, "59"},
      {-12.5, "-12.5"},
      {0.5, ".5"},
      {-0.0625, "-.0625"},
      {0.0001, ".0001"},
      {0.00001234, "1.234E-05"},
      {0.1 + 0.2, ".3"},
      {1 / 3.0, ".333333333333333"},
      {999999999999999, "999999999999999"},
      {999999999999999.9, "1E+15"},
      {0.99999999999999999, "1"},
      {9.9999999999999996, "10"},
      {1e15, "1E+15"},
      {-1.5e300, "-1.5E+300"},
      {1e-7, "1E-07"},
      {5e-324, "4.94065645841247E-324"},
      {1000000.0000000005, "1000000"},
  };
  for (const auto& c : cases) EXPECT_EQ(written(c.value), c.text);
}

TEST(DxfNumeri, NeverOtherwiseThanTheGeneralConversion) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> place(-1e6, 1e6);
  for (int i = 0; i < 300000; ++i) {
    const std::uint64_t bits = random();
    // Any double, one of a drawing's size, one with few digits, and one beside a half-way point.
    const double tie = std::ldexp(static_cast<double>(bits % 100000), -static_cast<int>(bits >> 59));
    for (const double value :
         {std::bit_cast<double>(bits), place(random), std::round(place(random)) / 1000, tie, std::nextafter(tie, 0)}) {
      ASSERT_EQ(written(value), number_text_trimmed(value)) << shortest_text(value);
    }
  }
}

TEST(DxfScrittura, EachClass) {
  Linea l = line(1, 2, 30.5, 100);
  l.colorelinea = tavolozza(1);
  l.stato = stato_selezionato;
  EXPECT_EQ(entities(l), "0|LINE|8|0|62|166|10|1|20|98|11|30.5|21|0|");

  Cerchio c = circle(10, 20, 5);
  c.raggio = 77;  // stale
  c.colcont = tavolozza(13);
  EXPECT_EQ(entities(c), "0|CIRCLE|8|0|62|230|10|10|20|80|40|5|");

  testo t = text(10, 40, "  due parole  ", 25);
  t.colore_testo = tavolozza(9);
  t.ang_testo(-30);
  EXPECT_EQ(entities(t), "0|Text|8|0|62|5|10|10|20|59|40|1|1|  due parole|50|-30|");
  // The height by itself has seven digits, that within the place all that its decimal text gives.
  EXPECT_EQ(entities(text(0, 0, "è\n€", 10.1F)), "0|Text|8|0|62|0|10|0|20|99.596|40|.404|1|\xE8 \x80|50|0|");
  EXPECT_EQ(entities(text(0, 0, "", 1)), "0|Text|8|0|62|0|10|0|20|99.96|40|.04|1||50|0|");

  const std::string vertices = "VERTEX|8|0|10|1|20|98|0|VERTEX|8|0|10|3|20|96|0|SEQEND|8|0|";
  EXPECT_EQ(entities(polyline({{1, 2}, {3, 4}})), "0|Polyline|8|0|62|0|66|1|0|" + vertices);
  EXPECT_EQ(entities(surface({{1, 2}, {3, 4}})), "0|Polyline|8|0|62|0|66|1|70|1|0|" + vertices);
  EXPECT_EQ(entities(rectangle(0, 0, 4, 3), 3),
            "0|Polyline|8|0|62|0|66|1|70|1|0|VERTEX|8|0|10|0|20|3|0|VERTEX|8|0|10|4|20|3|0|"
            "VERTEX|8|0|10|4|20|0|0|VERTEX|8|0|10|0|20|0|0|SEQEND|8|0|");
  EXPECT_EQ(entities(polilinea{}), "0|Polyline|8|0|62|0|66|1|0|SEQEND|8|0|");

  EXPECT_EQ(entities(arc({0, 0}, {1, 0}, {.5, .5})), "");
  l.stato = stato_cancellato;
  EXPECT_EQ(entities(l), "");
}

TEST(DxfScrittura, ClassesInTheirOrder) {
  disegno dis;
  dis.collRettangoli.aggiungi(rectangle(0, 0, 1, 1));
  dis.collSuperfici.aggiungi(surface({{0, 0}, {1, 0}, {5, 5}}));
  dis.collPolilinee.aggiungi(polyline({{7, 7}}));
  dis.collTesti.aggiungi(text(0, 0, "t"));
  dis.collCerchi.aggiungi(circle(0, 0, 1));
  dis.collLinee.aggiungi(line(0, 0, 1, 1));
  const std::string all = dxf_of(dis, 0);
  std::size_t at = 0;
  for (const char* mark : {"LINE\n", "CIRCLE\n", "Text\n", "Polyline\n", "10\n7\n", "70\n1\n", "10\n5\n", "70\n1\n"}) {
    at = all.find(mark, at);
    ASSERT_NE(at, std::string::npos) << mark;
    at += 1;
  }
}

TEST(DxfScrittura, Colours) {
  const int expected[] = {0, 166, 3, 51, 1, 6, 3, 9, 8, 5, 2, 4, 1, 230, 2, 0};
  for (int i = 0; i < numero_colori; ++i) EXPECT_EQ(SELCOLxDXF(tavolozza(i)), expected[i]) << i;
  EXPECT_EQ(SELCOLxDXF(rgb(1, 0, 0)), 0);
  EXPECT_EQ(SELCOLxDXF(-1), 0);
}

// Texts of every length meet the border of a block.
TEST(DxfScrittura, PiecesJoin) {
  disegno dis;
  std::string expected = "0\nSECTION\n2\nENTITIES\n";
  for (int i = 0; i < 3000; ++i) {
    const std::string words(static_cast<std::size_t>(i < 2 ? 600000 : i % 700), 'x');
    dis.collTesti.aggiungi(text(0, 0, words, 25));
    expected += "0\nText\n8\n0\n62\n0\n10\n0\n20\n-1\n40\n1\n1\n" + words + "\n50\n0\n";
  }
  EXPECT_EQ(dxf_of(dis, 0), expected + " 0 \nENDSEC\n 0 \nEOF\n");
}

}  // namespace
}  // namespace trelvo
