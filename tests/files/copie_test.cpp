#include "files/copie.h"

#include <gtest/gtest.h>

#include <optional>

#include "files/dis_documento.h"
#include "files/sostituzione.h"
#include "test_program.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

// Documents that the copies are of, in a program's list.
struct CopiedProgram : TestProgram {
  distipo& open(int number, const std::string& name) {
    auto& windows = bas.finestredocumenti;
    if (windows.size() <= static_cast<std::size_t>(number)) windows.resize(static_cast<std::size_t>(number) + 1);
    windows[static_cast<std::size_t>(number)] = std::make_unique<distipo>(bas, desktop.fonts(), number);
    distipo& opened = *windows[static_cast<std::size_t>(number)];
    opened.Caption = name;
    opened.surface.resize(15000, 9000);
    return opened;
  }
  void close(int number) { bas.finestredocumenti[static_cast<std::size_t>(number)].reset(); }
  std::size_t files() const {
    std::size_t n = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder / "p")) n += entry.is_regular_file() ? 1 : 0;
    return n;
  }
};

// The files of a program that is killed, as another one finds them: without its lock.
std::string killed(const CopiedProgram& p) {
  const std::string left = p.folder / "resto";
  fs::remove_all(left);
  fs::copy(p.folder / "p", left, fs::copy_options::recursive);
  return left;
}

TEST(Copie, FollowWhatIsNotSaved) {
  CopiedProgram p;
  fs::create_directory(p.folder / "p");
  copieaperte copies(p.folder / "p");
  distipo& unnamed = p.open(1, "Disegno _ 1");
  distipo& named = p.open(2, p.folder / "due.DIS");
  copies.aggiorna(p.bas);
  EXPECT_EQ(p.files(), 1U) << "a note of the drawing that has a file";
  unnamed.dis.collLinee.aggiungi({});
  named.dis.collLinee.aggiungi({});
  copies.annota(p.bas);
  EXPECT_EQ(p.files(), 1U);
  copies.aggiorna(p.bas);
  EXPECT_EQ(p.files(), 4U);

  const std::vector<disegnoperduto> lost = copieaperte(killed(p)).perduti();
  ASSERT_EQ(lost.size(), 2U);
  EXPECT_EQ(lost[0].nome, "Disegno _ 1");
  EXPECT_EQ(lost[1].nome, p.folder / "due.DIS");
  TestProgram reader;
  reader.doc.Caption = "x";
  leggifile(reader.doc, lost[1].copia);
  EXPECT_EQ(reader.doc.dis.collLinee.numero(), 1U);
  EXPECT_TRUE(copieaperte(p.folder / "p").perduti().empty()) << "a running program has lost nothing";

  salvafile(named);
  copies.aggiorna(p.bas);
  EXPECT_EQ(p.files(), 3U) << "a saved drawing needs its note alone";
  EXPECT_EQ(copieaperte(killed(p)).perduti().size(), 1U);
  named.dis.collLinee(1).stampare = 1;
  copies.aggiorna(p.bas);
  EXPECT_EQ(p.files(), 4U);
  EXPECT_EQ(copieaperte(killed(p)).perduti().size(), 1U) << "what the file says is not lost";
  named.dis.collLinee(1).stato = stato_cancellato;
  copies.aggiorna(p.bas);
  EXPECT_EQ(copieaperte(killed(p)).perduti().size(), 2U);
  // Another window of the same number has nothing of the former one.
  p.open(1, "Disegno _ 1");
  copies.annota(p.bas);
  EXPECT_EQ(p.files(), 2U);
  p.close(2);
  copies.annota(p.bas);
  EXPECT_EQ(p.files(), 0U);
}

TEST(Copie, AreMadeAgainWhereTheirFolderWent) {
  CopiedProgram p;
  fs::create_directory(p.folder / "p");
  copieaperte copies(p.folder / "p");
  p.open(1, "Disegno _ 1").dis.collLinee.aggiungi({});
  copies.aggiorna(p.bas);
  fs::remove_all(p.folder / "p");
  copies.aggiorna(p.bas);
  EXPECT_EQ(p.files(), 2U);
  EXPECT_EQ(copieaperte(killed(p)).perduti().size(), 1U);
}

TEST(Copie, OfABrokenSaveAreFoundAndForgotten) {
  CopiedProgram p;
  fs::create_directory(p.folder / "p");
  const std::string name = p.folder / "tre.DIS";
  {
    copieaperte copies(p.folder / "p");
    p.open(1, name);
    copies.annota(p.bas);
    EXPECT_TRUE(copieaperte(killed(p)).perduti().empty()) << "nothing to be had";
    EXPECT_TRUE(fs::is_empty(p.folder / "resto"));
    write_bytes(name + '~', "old");
    const copieaperte next(killed(p));
    const std::vector<disegnoperduto> lost = next.perduti();
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].nome, name);
    EXPECT_EQ(lost[0].copia, "");
    copieaperte::dimentica(lost[0]);
    EXPECT_TRUE(next.perduti().empty());
    EXPECT_TRUE(fs::exists(name + '~'));
  }
  EXPECT_TRUE(fs::is_empty(p.folder / "p")) << "the program ended as it should";
}

// What a kill, a full disk or another program leaves in the place of a note costs neither its copy nor the others.
TEST(Copie, OddNotesAreLostOnesAtMost) {
  struct Row {
    const char* name;
    std::optional<std::string> note;
    const char* told;
  };
  const Row rows[] = {{"missing", {}, "Disegno _ 1"},
                      {"empty", "", "Disegno _ 1"},
                      {"first line only", "print", "Disegno _ 1"},
                      {"no name", "print\n", "Disegno _ 1"},
                      {"zero", std::string("\n\0x.DIS", 8), "Disegno _ 1"},
                      {"whole", "print\na.DIS", "a.DIS"}};
  for (const Row& row : rows) {
    CopiedProgram p;
    const fs::path left = fs::path(std::string(p.folder / "p")) / "recupero" / "1";
    fs::create_directories(left);
    write_bytes((left / "1.DIS").string(), "copy");
    if (row.note) write_bytes((left / "1.nota").string(), *row.note);
    write_bytes((left / "2.nota").string(), "");
    write_bytes((left / "3.nota").string(), std::string("\n") + std::string(5000, 'x'));
    fs::create_directory(left / "4.nota");
    const copieaperte copies(p.folder / "p");
    const std::vector<disegnoperduto> lost = copies.perduti();
    ASSERT_EQ(lost.size(), 1U) << row.name;
    EXPECT_EQ(lost[0].nome, row.told) << row.name;
    EXPECT_EQ(lost[0].copia, (left / "1.DIS").string()) << row.name;
    copieaperte::dimentica(lost[0]);
    EXPECT_TRUE(copies.perduti().empty()) << row.name;
  }
}

// The mark goes also where nothing was saved, and with it the question at closing.
TEST(Copie, OutliveAWindowThatClosedWithoutAQuestion) {
  CopiedProgram p;
  {
    copieaperte copies(p.folder / "p");
    for (int number = 1; number <= 4; ++number) {
      distipo& doc = p.open(number, "Disegno _ " + std::to_string(number));
      doc.dis.collLinee.aggiungi({});
      doc.segno_tolto = number != 4;
    }
    p.bas.finestredocumenti[2]->cmd.modificato = 1;  // asked about, and given up
    p.bas.finestredocumenti[3]->salvata = p.bas.finestredocumenti[3]->dis.revisione();
    copies.annota(p.bas);
    for (int number = 1; number <= 4; ++number) p.close(number);
    copies.annota(p.bas);
  }
  const std::vector<disegnoperduto> lost = copieaperte(p.folder / "p").perduti();
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_EQ(lost[0].nome, "Disegno _ 1");
  EXPECT_NE(lost[0].copia, "");
}

TEST(Copie, TwoProgramsKeepApart) {
  CopiedProgram first;
  CopiedProgram second;
  fs::create_directory(first.folder / "p");
  copieaperte of_first(first.folder / "p");
  copieaperte of_second(first.folder / "p");
  first.open(1, "a.DIS");
  second.open(1, "b.DIS");
  of_first.annota(first.bas);
  of_second.annota(second.bas);
  EXPECT_EQ(first.files(), 2U);
  second.close(1);
  of_second.annota(second.bas);
  EXPECT_EQ(first.files(), 1U);
}

TEST(Copie, NoPlaceForThemIsNoFault) {
  CopiedProgram p;
  write_bytes(p.folder / "file", "no folder");
  copieaperte copies(p.folder / "file");
  distipo& changed = p.open(1, "Disegno _ 1");
  EXPECT_TRUE(copies.al_sicuro(changed));
  changed.dis.collLinee.aggiungi({});
  copies.aggiorna(p.bas);
  EXPECT_TRUE(copies.perduti().empty());
  EXPECT_FALSE(copies.al_sicuro(changed));
  copieaperte placed(p.folder / "p");
  placed.aggiorna(p.bas);
  EXPECT_TRUE(placed.al_sicuro(changed));
  EXPECT_EQ(read_bytes(p.folder / "file"), "no folder");
}

}  // namespace
}  // namespace trelvo
