// What happens at the limits of the format, and after very many documents and commands.
#include <gtest/gtest.h>

#include <ctime>
#include <fstream>

#include "app/app.h"
#include "support/programma.h"
#include "support/shapes.h"

namespace trelvo {
namespace {

struct Program {
  ScratchFolder folder;
  FakeDesktop desktop;
  trelvobas bas{desktop, folder.path()};

  explicit Program(FakeDesktop::ClientSize client = {1500, 900}) {
    desktop.client = client;
    prepara(bas);
    event([&] { Main(bas, ""); });
    create();
  }
  template <class Action>
  void event(Action&& action) {
    evento(bas, std::forward<Action>(action));
  }
  distipo& doc() { return *bas.attivo(); }
  void create() {
    event([&] { scegli(bas.frmMain.gestfile(1)); });
  }
  void close() {
    doc().cmd.modificato = 0;
    event([&] { chiudi(doc()); });
  }
  void draw(int item) {
    event([&] { scegli(doc().opdis(item)); });
  }
  // Drawing units.
  void click(double x, double y, int button = 1) {
    const double scale = doc().vista.rapscala;
    event([&] { Form_MouseMove(doc(), static_cast<float>(x * scale), static_cast<float>(y * scale)); });
    event([&] { Form_MouseDown(doc(), button, static_cast<float>(x * scale), static_cast<float>(y * scale)); });
  }
  // Saved under a name of its own, closed, and read again.
  void reopen() {
    doc().cmd.statooggetti = 1;
    desktop.files = {folder.file("limiti.DIS"), folder.file("limiti.DIS")};
    desktop.answers = {answer_yes};
    event([&] { scegli(doc().opfile(4)); });
    close();
    event([&] { scegli(bas.frmMain.gestfile(2)); });
  }
};

double cpu_seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

// Megabytes of memory in use; 0 where it cannot be told, or a sanitizer keeps what was given back.
double memory() {
#ifdef __SANITIZE_ADDRESS__
  return 0;
#else
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
#endif
}

TEST(Limiti, OneVertexMoreThanTheFormatCounts) {
  constexpr int most = 32767;
  for (const int item : {5, 6}) {
    Program p;
    p.draw(item);
    for (int i = 0; i < most; ++i) p.click(i % 100, i / 100 % 100);
    ASSERT_TRUE(p.desktop.errors.empty());
    p.click(1, 1);
    EXPECT_EQ(p.desktop.errors, std::vector<int>{error_overflow});
    p.click(1, 1, 2);
    EXPECT_EQ(p.doc().cmd.comando(), "");
    // The next object is as good as any other.
    p.draw(7);
    p.click(5, 5);
    p.click(9, 9);
    const std::string before = told(p.doc().dis);
    p.reopen();
    EXPECT_EQ(p.doc().Caption.get(), p.folder.file("limiti.DIS"));
    const disegno& dis = p.doc().dis;
    EXPECT_EQ(dis.collRettangoli.numero(), 1U);
    EXPECT_EQ(item == 5 ? dis.collPolilinee(1).vertic() : dis.collSuperfici(1).vertic(), most);
    EXPECT_EQ(told(dis), before);
  }
}

TEST(Limiti, TextsThroughTheFile) {
  const auto repeated = [](const char* part, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += part;
    return all;
  };
  const std::string hundred = repeated("0123456789", 10);
  const struct {
    std::string typed;
    std::string kept;
  } cases[] = {
      {hundred, hundred},
      {hundred + "x", hundred},
      {repeated(hundred.c_str(), 3), hundred},
      {repeated("è", 101), repeated("è", 100)},
      {"€ „caffè“ …", "€ „caffè“ …"},
      {"日本 →", "?? ?"},
      {repeated("→", 101), repeated("?", 100)},
      {"in coda   ", "in coda"},
      {"", ""},
  };
  Program p;
  for (const auto& c : cases) add(p.doc(), text(1, 2, c.typed));
  add(p.doc(), line(0, 0, 3, 4));
  p.reopen();
  EXPECT_TRUE(p.desktop.errors.empty());
  const auto& texts = p.doc().dis.collTesti;
  ASSERT_EQ(texts.numero(), std::size(cases));
  std::size_t position = 0;
  for (const auto& c : cases) {
    const testo& read = texts(++position);
    EXPECT_EQ(right_trimmed(read.stringa_testo), c.kept);
    EXPECT_EQ(read.nome_carattere(), "Arial");
    EXPECT_EQ(read.pos_testoy, 2);
  }
  EXPECT_EQ(p.doc().dis.collLinee(1).Yf, 4);
}

TEST(Limiti, TenThousandDocuments) {
  Program p({300, 150});
  const auto some = [&](int count) {
    const double before = cpu_seconds();
    for (int i = 0; i < count; ++i) {
      p.create();
      p.draw(1);
      p.click(1, 1);
      p.click(2, 3);
      p.close();
    }
    return cpu_seconds() - before;
  };
  some(1000);
  const double memory_before = memory();
  const double early = some(1000);
  some(7000);
  const double late = some(1000);
  EXPECT_EQ(p.bas.ndocumenti, 1);
  // A closed document leaves its place in the lists.
  EXPECT_LT(memory() - memory_before, 4);
  EXPECT_LT(late, 4 * early + 0.1);
}

TEST(Limiti, AWeekOfZooms) {
  Program p({300, 150});
  // A line across, so that there is something to paint.
  add(p.doc(), line(0, 0, 50, 20));
  p.doc().cmd.statooggetti = 1;
  const auto zooms = [&](int count) {
    const double before = cpu_seconds();
    for (int i = 0; i < count; ++i) {
      p.event([&] { scegli(p.doc().selezoom(1)); });
      p.click(i % 7, 1);
      p.click(i % 7 + 20, 11);
    }
    return cpu_seconds() - before;
  };
  zooms(1000);
  const double early = zooms(1000);
  const double memory_before = memory();
  const int level_before = p.doc().cmd.livello;
  zooms(200000 - level_before);
  const double levels = p.doc().cmd.livello - level_before;
  EXPECT_EQ(p.doc().cmd.livello, 200000);
  // Bytes a level, with the room that a growing list keeps.
  EXPECT_LT((memory() - memory_before) * 1024 * 1024 / levels, 400);
  EXPECT_LT(zooms(1000), 4 * early + 0.1);
  const double before = cpu_seconds();
  p.event([&] { scegli(p.doc().selezoom(3)); });
  EXPECT_LT(cpu_seconds() - before, 0.5);
  EXPECT_TRUE(p.desktop.errors.empty());
}

}  // namespace
}  // namespace trelvo
