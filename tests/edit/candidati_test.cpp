// Everything that asks the places of the objects, against the plain walk over all of them: the same drawing twice, one
// with places and one without, and the same orders to both.

#include "view/candidati.h"

#include <gtest/gtest.h>

#include <functional>

#include "edit/edit.h"
#include "support/programma.h"
#include "support/random_drawing.h"
#include "view/aggancio.h"
#include "view/anteprima_modifica.h"
#include "view/mappa.h"
#include "view/redraw.h"
#include "view/selezione.h"

namespace trelvo {
namespace {

template <class Action>
void each_class(const Action& action) {
  action(superficie{});
  action(Rettangolo{});
  action(Linea{});
  action(polilinea{});
  action(testo{});
  action(Arco{});
  action(Cerchio{});
}

class Pair {
 public:
  Pair(unsigned seed, double unit, int rarity, int objects) : shapes(seed, unit, rarity) {
    plain.doc.dis.con_luoghi = false;
    for (LoneDocument* p : both()) {
      aggiungi_modifiche(p->bas);
      p->doc.surface.resize(1500, 1050);
      p->doc.imp.bordotesto = 1;
    }
    add_objects(objects);
    view();
  }

  std::vector<LoneDocument*> both() { return {&plain, &found}; }

  void add_objects(int count) {
    each_class([&](auto o) {
      for (int i = 0; i < count; ++i) {
        shapes.make(o);
        o.stato = shapes.one_in(10) ? stato_cancellato : stato_presente;
        for (LoneDocument* p : both()) add(p->doc, o);
      }
    });
  }

  // Both do it, fail alike, and are alike.
  void together(const char* what, const std::function<void(distipo&)>& action) {
    int error[2] = {0, 0};
    int i = 0;
    for (LoneDocument* p : both()) {
      try {
        action(p->doc);
      } catch (const RuntimeError& e) {
        error[i] = e.number();
      }
      ++i;
    }
    SCOPED_TRACE(what);
    ASSERT_EQ(error[0], error[1]);
    const distipo& a = plain.doc;
    const distipo& b = found.doc;
    ASSERT_TRUE(a.surface.Image().pixels == b.surface.Image().pixels);
    ASSERT_TRUE(a.surface.screen().pixels == b.surface.screen().pixels);
    ASSERT_EQ(a.cmd.ntrovati, b.cmd.ntrovati);
    ASSERT_EQ(a.filtro.trovatofiltro, b.filtro.trovatofiltro);
    ASSERT_EQ(told_number(a.filtro.xfiltro), told_number(b.filtro.xfiltro));
    ASSERT_EQ(told_number(a.filtro.yfiltro), told_number(b.filtro.yfiltro));
    ASSERT_EQ(told_font(a), told_font(b));
    ASSERT_EQ(conta_selezionati(a), conta_selezionati(b));
  }
  void same_objects() { ASSERT_EQ(told(plain.doc.dis), told(found.doc.dis)); }

  void view() {
    double width = 0.3 * shapes.size();
    if (shapes.one_in(60)) width = shapes.unit() * (shapes.one_in(2) ? 1e-40 : 1e25);
    const vertice corner = shapes.near(some_place());
    together("redraw", [&](distipo& doc) {
      impost_rapscala(doc, 0, 0, width, width);
      doc.surface.ScaleLeft = static_cast<float>(corner.x * doc.vista.rapscala);
      doc.surface.ScaleTop = static_cast<float>(corner.y * doc.vista.rapscala);
      redraw(doc);
    });
  }
  void pick() {
    const vertice p = shapes.near(some_place());
    together("pick", [&](distipo& doc) { selezionaoggetti(doc, p.x, p.y); });
  }
  void snap() {
    const vertice p = shapes.near(some_place());
    const int filter = shapes.whole(2, 6);
    together("snap", [&](distipo& doc) {
      doc.filtro.filtroattivo = filter;
      doc.filtro.trovatofiltro = 0;
      selezoggettifiltri(doc, p.x, p.y);
    });
  }
  void window() {
    const vertice a = shapes.near(some_place());
    const vertice b = shapes.near(a);
    const int way = shapes.whole(0, 3);
    together("window", [&](distipo& doc) {
      double x1 = a.x;
      double y1 = a.y;
      double x2 = b.x;
      double y2 = b.y;
      doc.cmd.corrente().tipo(way == 3 ? "Selstamp" : "Sposta");
      if (way == 0) selezfin(doc, x1, y1, x2, y2);
      if (way == 1) selezintersStira(doc, x1, y1, x2, y2);
      if (way >= 2) selezinters(doc, x1, y1, x2, y2);
    });
  }
  void edit() {
    const char* const commands[] = {"Cancella", "Sposta", "Copia", "Stira", "Ruota", "Specchio"};
    const char* const command = commands[shapes.whole(0, 5)];
    const vertice a = some_place();
    const vertice b = shapes.near(a);
    const bool quarter = shapes.one_in(2);
    together("preview", [&](distipo& doc) {
      doc.surface.set_AutoRedraw(false);
      banda band;
      band.DX = b.x - a.x;
      band.DY = b.y - a.y;
      band.ax = a.x;
      band.ay = a.y;
      band.bx = b.x;
      band.by = b.y;
      anteprima_modifica(doc, command, band);
    });
    together(command, [&](distipo& doc) {
      doc.surface.set_AutoRedraw(true);
      reccomando& r = doc.cmd.corrente();
      r.tipo(command);
      r.x1 = a.x;
      r.y1 = a.y;
      r.x2 = quarter ? 90 : b.x;
      r.y2 = b.y;
      int counter = 0;
      for (const auto& edit : doc.bas.modifiche) edit(doc, doc.cmd.livello, counter);
    });
    same_objects();
  }
  // Written to from outside, one by one and in a walk.
  void write() {
    each_class([&](auto o) {
      using Class = decltype(o);
      const auto position = static_cast<std::size_t>(shapes.whole(1, static_cast<int>(numero<Class>())));
      shapes.make(o);
      for (LoneDocument* p : both()) collezione_di<Class>(p->doc.dis)(position) = o;
    });
    const double shift = shapes.size();
    const bool circles = shapes.one_in(4);
    for (LoneDocument* p : both()) {
      if (!circles) continue;
      visita<Cerchio>(p->doc.dis, [&](Cerchio& o) { o.Xcentro += shift; });
    }
  }

  // How many of the questions about lines were answered with a few of them.
  void count_answer() {
    const vertice a = some_place();
    ++questions;
    const finestra f = finestra::ordinata(a.x, a.y, a.x + 0.1 * shapes.unit(), a.y + 0.1 * shapes.unit());
    answers += ricerca<Linea>::in(found.doc, f).tutti ? 0 : 1;
  }

  RandomShapes shapes;
  LoneDocument plain;
  LoneDocument found;
  int questions = 0;
  int answers = 0;

 private:
  template <class Class>
  std::size_t numero() const {
    return collezione_di<Class>(plain.doc.dis).numero();
  }
  vertice some_place() {
    if (shapes.one_in(5)) return shapes.spot();
    const auto n = static_cast<int>(plain.doc.dis.collLinee.numero());
    const Linea& o = std::as_const(plain.doc.dis.collLinee)(static_cast<std::size_t>(shapes.whole(1, n)));
    if (shapes.one_in(3)) return {std::as_const(plain.doc.dis.collCerchi)(1).Xcentro, o.Yi};
    return {o.Xi, o.Yi};
  }
  static std::string told_number(double v) { return std::isnan(v) ? "nan" : std::to_string(v); }
  static std::string told_font(const distipo& doc) {
    const SurfaceFont& f = doc.surface.font;
    return f.name + ' ' + std::to_string(f.size) + (f.bold ? "b" : "") + (f.italic ? "i" : "");
  }
};

struct Kind {
  double unit;
  int rarity;
  int objects;
  int drawings;
};

TEST(Candidates, TellWhatThePlainWalkTells) {
  const Kind kinds[] = {{1, 300, 60, 60},    {1, 1000000, 200, 30}, {1e6, 1000000, 100, 20},
                        {1e-4, 500, 60, 20}, {1, 5, 40, 10},        {1, 3000, 2000, 2}};
  unsigned seed = 0;
  int questions = 0;
  int answers = 0;
  for (const Kind& kind : kinds) {
    for (int i = 0; i < kind.drawings; ++i) {
      Pair p(++seed, kind.unit, kind.rarity, kind.objects);
      for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + " round " + std::to_string(round));
        for (int k = 0; k < 3; ++k) {
          p.view();
          p.snap();
          p.pick();
          p.window();
          p.count_answer();
        }
        if (round % 3 == 0) p.write();
        if (round % 4 == 0) p.add_objects(p.shapes.whole(0, 5));
        if (round % 2 == 0) p.edit();
        if (testing::Test::HasFatalFailure()) return;
      }
      p.same_objects();
      questions += p.questions;
      answers += p.answers;
    }
  }
  EXPECT_GT(answers, questions / 2) << "most questions are to be answered by places";
}

}  // namespace
}  // namespace trelvo
