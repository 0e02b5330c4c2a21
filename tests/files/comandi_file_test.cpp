#include "files/comandi_file.h"

#include <gtest/gtest.h>

#include "test_program.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

struct Commands : TestProgram {
  std::vector<std::string> done;

  int run(const std::string& command) {
    const servizifile services{[&](distipo& d) { done.push_back(d.cmd.modificato == 1 ? "asks" : "scarica"); },
                               [&](distipo&) { done.push_back("importa"); }};
    return error_of([&] { aprisalvadisegno(bas, command, services); });
  }
};

TEST(ComandiFile, Saving) {
  const struct {
    const char* name;
    const char* command;
    const char* caption;  // "" for a document without a name, else a file in the folder
    std::deque<std::string> chosen;
    std::deque<int> answers;
    const char* saved;  // "" for none
    std::size_t questions;
  } cases[] = {
      {"named", "Salva", "a.dis", {}, {}, "a.dis", 0},
      {"first time", "Salva", "", {"b.dis"}, {}, "b.dis", 0},
      {"under another name", "SalvaConNome", "a.dis", {"b.dis"}, {}, "b.dis", 0},
      {"cancelled", "SalvaConNome", "a.dis", {""}, {}, "", 0},
      {"cancelled without a name", "SalvaConNome", "", {""}, {}, "", 0},
      {"over an old file", "SalvaConNome", "", {"old.dis"}, {answer_yes}, "old.dis", 1},
      {"over its own file", "SalvaConNome", "a.dis", {"a.dis"}, {answer_yes}, "a.dis", 1},
      {"not over an old file", "SalvaConNome", "a.dis", {"old.dis"}, {answer_cancel}, "", 1},
      {"another name after all", "SalvaConNome", "", {"old.dis", "c.dis"}, {answer_no}, "c.dis", 1},
      {"no such folder", "SalvaConNome", "a.dis", {"none/b.dis"}, {}, "", 0},
      {"a folder", "SalvaConNome", "a.dis", {"folder"}, {}, "", 0},
  };
  for (const auto& c : cases) {
    Commands p;
    const auto path = [&](const std::string& file) { return file.empty() ? file : p.folder / file; };
    const std::string before = *c.caption == '\0' ? "Disegno _ 1" : path(c.caption);
    if (*c.caption != '\0') write_bytes(before, "old");
    write_bytes(p.folder / "old.dis", "old");
    fs::create_directory(p.folder / "folder");
    p.doc.Caption = before;
    for (const std::string& file : c.chosen) p.desktop.files.push_back(path(file));
    p.desktop.answers = c.answers;
    EXPECT_EQ(p.run(c.command), 0) << c.name;
    EXPECT_EQ(p.doc.Caption.get(), *c.saved == '\0' ? before : path(c.saved)) << c.name;
    EXPECT_EQ(p.desktop.messages.size(), c.questions) << c.name;
    EXPECT_TRUE(p.desktop.files.empty()) << c.name;
    for (const auto& entry : fs::directory_iterator(p.folder.name())) {
      if (!entry.is_regular_file()) continue;
      const bool is_saved = entry.path().filename() == c.saved;
      EXPECT_EQ(read_bytes(entry.path().string()) == "old", !is_saved) << c.name << entry.path();
      EXPECT_EQ(entry.file_size() == 11 * 242, is_saved) << c.name << entry.path();
    }
  }
}

TEST(ComandiFile, WhatTheSaveDialogShows) {
  Commands p;
  struct Watching : FakeDesktop {
    bool show_save(CommonDialog& dialog) override {
      shown.push_back(dialog);
      return FakeDesktop::show_save(dialog);
    }
    std::vector<CommonDialog> shown;
  } desktop;
  trelvobas bas(desktop, p.folder.name());
  distipo doc(bas, desktop.fonts(), 1);
  bas.ordine.push_back(&doc);
  write_bytes(p.folder / "old.dis", "old");
  for (const std::string& caption : {std::string("Disegno _ 1"), p.folder / "Disegno _ 1"}) {
    doc.Caption = caption;
    desktop.files = {p.folder / "old.dis", ""};
    desktop.answers = {answer_no};
    aprisalvadisegno(bas, "SalvaConNome", {});
  }
  ASSERT_EQ(desktop.shown.size(), 4U);
  EXPECT_EQ(desktop.shown[0].Filter,
            "DIsegni Trelvo (*.DIS)|*.DIS|Disegni file-testo (*.TXT)|*.TXT|Tutti i file (*.*)|*.*");
  EXPECT_EQ(desktop.shown[0].FilterIndex, 1);
  EXPECT_EQ(desktop.shown[1].FileName, "");
  EXPECT_EQ(desktop.shown[2].FileName, p.folder / "Disegno _ 1");
  EXPECT_EQ(desktop.shown[3].FileName, p.folder / "Disegno _ 1");
  EXPECT_EQ(desktop.messages.at(0), "File \"" + (p.folder / "old.dis") + "\"  Esiste - Sovrapporre?");
}

TEST(ComandiFile, FailedWriteIsTold) {
  Commands p;
  p.desktop.files = {"/dev/full"};
  EXPECT_EQ(p.run("SalvaConNome"), error_disk_full);
  EXPECT_EQ(p.doc.Caption.get(), "/dev/full");
}

TEST(ComandiFile, Opening) {
  const struct {
    const char* name;
    const char* chosen;
    bool opened;
    std::size_t messages;
    std::vector<std::string> done;
  } cases[] = {
      {"drawing", "a.dis", true, 0, {}},
      {"text", "a.txt", true, 0, {"importa"}},
      {"capital ending", "a.TXT", true, 0, {}},
      {"cancelled", "", false, 0, {"scarica"}},
      {"missing", "missing.dis", false, 0, {"scarica"}},
      {"a folder", "folder", false, 0, {"scarica"}},
      {"in use", "used.dis", false, 1, {"scarica"}},
  };
  for (const auto& c : cases) {
    Commands p;
    for (const char* file : {"a.dis", "a.txt", "a.TXT", "used.dis"}) {
      write_bytes(p.folder / file, test_header() + TestRecord("Linea", 0).byte);
    }
    fs::create_directory(p.folder / "folder");
    p.bas.ndocumenti = p.bas.progrdocumento = 2;
    p.bas.nomidocumenti = {"", p.folder / "used.dis", "Disegno _ 2"};
    const std::string name = *c.chosen == '\0' ? "" : p.folder / c.chosen;
    p.desktop.files = {name};
    p.doc.cmd.modificato = 1;  // the window took another size meanwhile
    EXPECT_EQ(p.run("Apri"), 0) << c.name;
    EXPECT_EQ(p.done, c.done) << c.name;
    EXPECT_EQ(p.doc.Caption.get(), c.opened ? name : "Disegno _ 1") << c.name;
    EXPECT_EQ(p.bas.nomidocumenti.at(2), c.opened ? name : "Disegno _ 2") << c.name;
    EXPECT_EQ(p.bas.progrdocumento, c.opened ? 2 : 1) << c.name;
    EXPECT_EQ(p.doc.dis.collLinee.numero(), c.opened && c.done.empty() ? 1U : 0U) << c.name;
    ASSERT_EQ(p.desktop.messages.size(), c.messages) << c.name;
    for (const std::string& message : p.desktop.messages) EXPECT_EQ(message, name + "  Attualmente in uso.") << c.name;
  }
}

TEST(ComandiFile, FaultOfAFileReachesTheUserWithTheDocumentOpen) {
  Commands p;
  std::string bytes = test_header();
  put(bytes, 1212, std::int16_t{99});
  write_bytes(p.folder / "a.dis", bytes);
  p.desktop.files = {p.folder / "a.dis"};
  EXPECT_EQ(p.run("Apri"), error_bad_index);
  EXPECT_EQ(p.doc.Caption.get(), p.folder / "a.dis");
  EXPECT_TRUE(p.done.empty());
}

}  // namespace
}  // namespace trelvo
