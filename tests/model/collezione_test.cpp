#include "model/collezione.h"

#include <gtest/gtest.h>

#include <numeric>
#include <utility>
#include <vector>

#include "model/disegno.h"

namespace trelvo {
namespace {

TEST(Collection, ObjectsKeepTheirPlaceAndOrder) {
  collezione<int> c;
  int& first = c.aggiungi(0);
  for (int i = 1; i < 5000; ++i) c.aggiungi(i);
  EXPECT_EQ(&first, &c(1));
  EXPECT_EQ(c.numero(), 5000U);
  EXPECT_EQ(c(1025), 1024);
  int expected = 0;
  for (const int value : c) ASSERT_EQ(value, expected++);
  EXPECT_EQ(expected, 5000);
  EXPECT_THROW(c(0), RuntimeError);
  EXPECT_THROW(c(5001), RuntimeError);
}

TEST(Collection, EmptyWalkAndExactChunk) {
  collezione<int> c;
  EXPECT_TRUE(c.begin() == c.end());
  for (std::size_t i = 0; i < collezione<int>::per_blocco; ++i) c.aggiungi(1);
  EXPECT_EQ(std::accumulate(c.begin(), c.end(), 0), static_cast<int>(collezione<int>::per_blocco));
}

struct Watched {
  disegno dis;
  collezione<Linea>& lines = dis.collLinee;

  explicit Watched(int count) {
    for (int i = 0; i < count; ++i) lines.aggiungi({});
    seen();
  }
  // Positions that are to be placed anew since the last time.
  std::vector<posizione_t> seen() {
    std::vector<posizione_t> all;
    std::as_const(lines).colloca([&](posizione_t p, const Linea& /*o*/) { all.push_back(p); });
    return all;
  }
};

TEST(Collection, MarksWhatIsTakenForWriting) {
  using positions = std::vector<posizione_t>;
  Watched w(3000);
  w.lines(7).Xi = 1;
  w.lines(2048).Xi = 1;
  w.lines.aggiungi({});
  EXPECT_EQ(w.seen(), (positions{7, 2048, 3001}));
  EXPECT_EQ(w.seen(), positions{});
  for (const Linea& o : std::as_const(w.lines)) ASSERT_EQ(o.stato, 0);
  EXPECT_EQ(std::as_const(w.lines)(5).stato, 0);
  EXPECT_EQ(w.seen(), positions{}) << "reading marks nothing";
  w.lines.begin()->Xi = 2;
  EXPECT_EQ(w.seen(), positions{1});
  visita<Linea>(w.dis, [](Linea& o) { o.Yi = 1; });
  EXPECT_EQ(w.seen().size(), 3001U);
}

TEST(Collection, ListsTheObjectsInUse) {
  using positions = std::vector<posizione_t>;
  Watched w(3000);
  EXPECT_EQ(w.lines.in_uso(), positions{});
  for (const std::size_t p : {5U, 2000U, 2999U}) w.lines(p).stato = stato_selezionato;
  w.lines(9).vert2_selez = 1;
  w.lines(10).stato = stato_cancellato;
  EXPECT_EQ(w.lines.in_uso(), (positions{5, 9, 2000, 2999}));
  w.lines(2000).stato = stato_presente;
  w.lines(1).stato = stato_selezionato;
  EXPECT_EQ(w.lines.in_uso(), (positions{1, 5, 9, 2999}));
  for (const bool with_places : {true, false}) {
    w.dis.con_luoghi = with_places;
    int visited = 0;
    visita_selezionati<Linea>(w.dis, [&](const Linea& /*o*/) {
      ++visited;
      w.lines.aggiungi(w.lines(1));
    });
    EXPECT_EQ(visited, with_places ? 3 : 6) << "and none that was added meanwhile";
  }
}

TEST(Vertices, ResizingKeepsWhatFits) {
  polilinea p;
  double x = -1;
  double y = -1;
  p.prel_vert_pol(x, y, 0);
  EXPECT_EQ(x, 0);
  p.vertic(3);
  for (int i = 1; i <= 3; ++i) p.inser_vert_pol(i, -i, i);
  p.ins_vertselez(1, 2);
  p.vertic(2);
  p.vertic(4);
  p.prel_vert_pol(x, y, 2);
  EXPECT_EQ(y, -2);
  EXPECT_EQ(p.prel_vertselez(2), 1);
  p.prel_vert_pol(x, y, 3);
  EXPECT_EQ(x, 0);
  EXPECT_THROW(p.prel_vert_pol(x, y, 5), RuntimeError);
  EXPECT_THROW(p.inser_vert_pol(0, 0, -1), RuntimeError);
  EXPECT_THROW(p.vertic(-1), RuntimeError);
}

TEST(TextObject, AccessorsAreAsymmetric) {
  testo t;
  EXPECT_EQ(t.carattere_testo(), std::string(32, ' '));
  t.corsivo_testo(vero);
  EXPECT_EQ(t.corsivo_testo(), falso);
  EXPECT_EQ(t.inclinato(), vero);
  t.bold_testo = vero;
  EXPECT_EQ(t.corsivo_testo(), vero);
  t.carattere_testo("Arial");
  EXPECT_EQ(t.carattere_testo(), std::string("Arial") + '\0' + std::string(26, ' '));
  EXPECT_EQ(t.nome_carattere(), "Arial");
  t.ang_testo(45);
  EXPECT_EQ(t.ang_testo(), 45);
}

}  // namespace
}  // namespace trelvo
