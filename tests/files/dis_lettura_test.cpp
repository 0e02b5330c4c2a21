#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "platform/runtime_error.h"
#include "test_drawing.h"
#include "test_files.h"

namespace trelvo {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();

const std::string good_line = TestRecord("Linea", 0).p1(1, 2).p2(3, 4).byte;

TEST(DisLettura, FieldsOfEveryClass) {
  disegno dis;
  read_records(TestRecord("Linea", 0).p1(1, 2).p2(3, 4).look(5, 99, 6, 99, 7).byte +
                   TestRecord("Arco", 0).p1(1, 2).p2(3, 4).p3(5, 6).look(7, 99, 8, 99, 9).byte +
                   TestRecord("Cerchio", 0).p1(1, 1).p2(4, 5).look(6, 7, 8, 9, 10).byte +
                   TestRecord("Testo", 0)
                       .p1(1, 2)
                       .p2(0, 1)
                       .p3(1, 0.5)
                       .look(3, 4, 1, 45, 6)
                       .text(std::string_view("Courier\0", 8), "citt\xE0")
                       .byte,
               dis);
  const Linea& l = dis.collLinee(1);
  EXPECT_EQ(std::vector({l.Xi, l.Yi, l.Xf, l.Yf}), std::vector({1., 2., 3., 4.}));
  EXPECT_EQ(std::vector({l.colorelinea, l.TipoLinea, static_cast<int>(l.speslinea)}), std::vector({5, 6, 7}));
  const Arco& a = dis.collArchi(1);
  EXPECT_EQ(std::vector({a.p1x, a.p1y, a.p2x, a.p2y, a.p3x, a.p3y}), std::vector({1., 2., 3., 4., 5., 6.}));
  EXPECT_EQ(std::vector({a.colcont, a.trattcont, static_cast<int>(a.spescont)}), std::vector({7, 8, 9}));
  const Cerchio& c = dis.collCerchi(1);
  EXPECT_EQ(std::vector({c.colcont, c.colocampitura, c.trattcont, c.campitura, static_cast<int>(c.spescont)}),
            std::vector({6, 7, 8, 9, 10}));
  EXPECT_DOUBLE_EQ(c.raggio, 5);
  EXPECT_NEAR(c.perimet, 31.41592653, 1e-6);
  EXPECT_NEAR(c.supf, 78.53981633, 1e-6);
  const testo& t = dis.collTesti(1);
  EXPECT_EQ(std::vector({t.barrato_testo, t.bold_testo, t.inclinato(), t.opaco_testo, t.sottolineato_testo}),
            (std::vector<std::int16_t>{falso, vero, vero, falso, vero}));
  EXPECT_EQ(std::vector({t.colore_testo, t.colore_opaco_testo, t.ang_testo(), static_cast<int>(t.dimens_testo)}),
            std::vector({3, 4, 45, 6}));
  EXPECT_EQ(t.nome_carattere(), "Courier");
  EXPECT_EQ(t.stringa_testo, "città" + std::string(95, ' '));
}

TEST(DisLettura, MeasuresAreUpToDate) {
  disegno dis;
  read_records(TestRecord("Superficie", 3).p1(0, 0).p2(3, 0).p3(3, 4).byte +
                   TestRecord("Rettangolo", 0).p1(0, 0).p2(2, 0).p3(2, 5).byte + TestRecord("x", 0).p1(0, 5).byte,
               dis);
  EXPECT_DOUBLE_EQ(dis.collSuperfici(1).perimet, 12);
  EXPECT_DOUBLE_EQ(dis.collSuperfici(1).supf, 6);
  EXPECT_DOUBLE_EQ(dis.collRettangoli(1).perimet, 14);
  EXPECT_DOUBLE_EQ(dis.collRettangoli(1).supf, 10);
}

TEST(DisLettura, WhichRecordsMakeObjects) {
  const std::string poli4 = TestRecord("Polilinea", 4).byte;
  const std::string continua = TestRecord("ContinuaPolilinea", 4).byte;
  const struct {
    const char* name;
    std::string record;
    std::size_t objects;
    bool recognised;
  } cases[] = {
      {"empty", "", 0, false},
      {"one line", good_line, 1, true},
      {"blanks around the kind", TestRecord("  Linea", 0).byte, 1, true},
      {"lower case", TestRecord("line", 0).byte, 0, false},
      {"unknown kind between", good_line + TestRecord("Blocco", 0).byte + good_line, 2, true},
      {"continuation alone", continua + good_line, 1, true},
      {"counts, not marks", poli4 + good_line + good_line, 2, true},
      {"marks beyond the count", TestRecord("Polilinea", 3).byte + continua + good_line, 2, true},
      {"no vertices", TestRecord("Superficie", 0).byte + good_line, 2, true},
      {"missing continuation", good_line + poli4, 1, true},
      {"negative count", good_line + TestRecord("Polilinea", -1).byte + good_line, 1, true},
      {"count beyond the file", good_line + TestRecord("Superficie", 32767).byte + good_line + good_line, 1, true},
      {"rectangle without its second", good_line + TestRecord("Rettangolo", 0).byte, 1, true},
      {"nothing but half an object", TestRecord("Rettangolo", 0).byte, 0, true},
  };
  for (const auto& c : cases) {
    disegno dis;
    EXPECT_EQ(read_records(c.record, dis).riconosciuti, c.recognised) << c.name;
    EXPECT_EQ(object_count(dis), c.objects) << c.name;
  }
}

TEST(DisLettura, NumberThatIsNotFiniteStops) {
  const struct {
    const char* name;
    std::string record;
    bool stops;
  } cases[] = {
      {"line", TestRecord("Linea", 0).p1(infinite, 0).byte, true},
      {"width", TestRecord("Linea", 0).look(0, 0, 0, 0, static_cast<float>(nan_value)).byte, true},
      {"circle", TestRecord("Cerchio", 0).p2(0, nan_value).byte, true},
      {"arc", TestRecord("Arco", 0).p3(0, -infinite).byte, true},
      {"vertex of a continuation", TestRecord("Superficie", 4).byte + TestRecord("x", 0).p1(nan_value, 0).byte, true},
      {"text", TestRecord("Testo", 0).p1(nan_value, 0).byte, true},
      {"flags of a text are no coordinates", TestRecord("Testo", 0).p2(nan_value, infinite).byte, false},
      {"point that the count leaves out", TestRecord("Polilinea", 1).p2(nan_value, 0).byte, false},
      {"point that a line has not", TestRecord("Linea", 0).p3(nan_value, 0).byte, false},
  };
  for (const auto& c : cases) {
    disegno dis;
    int error = 0;
    try {
      read_records(good_line + c.record + good_line, dis);
    } catch (const RuntimeError& e) {
      error = e.number();
    }
    EXPECT_EQ(error, c.stops ? error_overflow : 0) << c.name;
    EXPECT_EQ(object_count(dis), c.stops ? 1U : 3U) << c.name;
  }
}

// Random objects of all classes, two of which are deleted.
disegno random_drawing(unsigned seed) {
  std::mt19937 random(seed);
  const auto number = [&] { return std::uniform_real_distribution(-1e6, 1e6)(random); };
  const auto whole = [&](int end) { return std::uniform_int_distribution(0, end)(random); };
  const auto outline = [&](auto& o) {
    o.colcont = whole(0xFFFFFF);
    o.trattcont = whole(5);
    o.spescont = static_cast<float>(number());
  };
  const auto vertices = [&](auto& o, int n) {
    outline(o);
    o.vertic(static_cast<std::int16_t>(n));
    for (int i = 1; i <= n; ++i) o.vertici.inserisci(number(), number(), i);
  };
  disegno dis;
  for (int i = 0; i < 40; ++i) {
    auto& l = dis.collLinee.aggiungi({});
    l.Xi = number();
    l.Yf = number();
    if (i < 2) l.stato = stato_cancellato;
    vertices(dis.collSuperfici.aggiungi({}), 1 + whole(12));
    vertices(dis.collPolilinee.aggiungi({}), 1 + whole(12));
    vertices(dis.collRettangoli.aggiungi({}), 4);
    auto& a = dis.collArchi.aggiungi({});
    outline(a);
    a.p3y = number();
    auto& c = dis.collCerchi.aggiungi({});
    outline(c);
    c.Ycentro = number();
    c.campitura = whole(8);
    auto& t = dis.collTesti.aggiungi({});
    t.carattere_testo("Liberation Sans");
    t.stringa_testo = std::string(static_cast<std::size_t>(whole(110)), static_cast<char>('a' + whole(25))) + "€ù";
    t.bold_testo = whole(1) == 1 ? vero : falso;
    t.ang_testo(whole(359));
  }
  return dis;
}

TEST(DisLettura, RoundTrip) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    const std::string written = records_of(random_drawing(seed));
    disegno read_back;
    read_records(written, read_back);
    EXPECT_EQ(object_count(read_back), 7U * 40 - 2) << seed;
    EXPECT_EQ(records_of(read_back), written) << seed;
  }
}

TEST(DisLettura, MoreRecordsThanABlock) {
  std::string record;
  for (int i = 0; i < 2500; ++i) record += TestRecord("Polilinea", 4).p1(i, 0).byte + TestRecord("", 4).p1(0, i).byte;
  disegno dis;
  read_records(record, dis);
  ASSERT_EQ(dis.collPolilinee.numero(), 2500U);
  EXPECT_EQ(dis.collPolilinee(2500).vertici.preleva(1).x, 2499);
  EXPECT_EQ(dis.collPolilinee(2500).vertici.preleva(4).y, 2499);
}

TEST(DisLettura, CutAtEveryByte) {
  const std::string record = good_line + TestRecord("Polilinea", 7).byte + TestRecord("", 7).byte +
                             TestRecord("", 7).byte + TestRecord("Rettangolo", 0).byte + TestRecord("", 0).byte +
                             TestRecord("Testo", 0).byte;
  const std::size_t object_ends[] = {1, 4, 6, 7};
  for (std::size_t n = 0; n <= record.size(); ++n) {
    disegno dis;
    read_records(record.substr(0, n), dis);
    const auto expected = std::count_if(std::begin(object_ends), std::end(object_ends),
                                        [&](std::size_t end) { return end * lunghezza_slot <= n; });
    ASSERT_EQ(object_count(dis), static_cast<std::size_t>(expected)) << n;
  }
}

TEST(DisLettura, RandomBytesDoNoHarm) {
  constexpr const char* kinds[] = {"Linea", "Superficie", "Polilinea", "Arco", "Cerchio", "Rettangolo", "Testo"};
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    std::string record(242 * 20, '\0');
    for (char& c : record) c = static_cast<char>(random());
    for (std::size_t i = 0; i < 20; ++i) {
      const std::string kind = kinds[random() % std::size(kinds)];
      put_text(record, i * 242, kind + std::string(40 - kind.size(), ' '));
      if (random() % 2 == 0) put(record, i * 242 + 240, static_cast<std::int16_t>(random() % 9));
    }
    disegno dis;
    try {
      read_records(record, dis);
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), error_overflow);
    }
    visita<Linea>(dis, [](const Linea& l) { EXPECT_TRUE(std::isfinite(l.Xi + l.speslinea)); });
  }
}

}  // namespace
}  // namespace trelvo
