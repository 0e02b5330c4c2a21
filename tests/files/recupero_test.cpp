#include "files/recupero.h"

#include <gtest/gtest.h>

#include "files/sostituzione.h"
#include "test_program.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

TEST(Recupero, LatestCopyOfAnUnfinishedOrOlderDrawing) {
  const TestFolder folder;
  // How a file stands: its age in seconds and its rights; no age, no file. Empty without `text`.
  struct State {
    int age = -1;
    fs::perms rights{0644};
    const char* text = "DIS";
  };
  const State missing;
  const State now{10};
  const State old{100};
  const State unfinished{10, fs::perms{0200}};
  const State empty{10, fs::perms{0644}, ""};
  const struct {
    State drawing, copy, second;
    const char* offered;
  } cases[] = {
      {missing, missing, missing, ""},
      {now, missing, missing, ""},
      {now, old, missing, ""},
      {now, now, missing, ""},
      {old, now, missing, "~"},
      {missing, old, missing, "~"},
      {unfinished, old, missing, "~"},
      {empty, old, missing, "~"},
      {unfinished, unfinished, old, "~~"},
      {unfinished, missing, old, ""},
      {missing, old, now, "~~"},
      {missing, now, old, "~"},
      {old, empty, missing, ""},
      {unfinished, unfinished, missing, ""},
  };
  const fs::file_time_type present = fs::file_time_type::clock::now();
  int number = 0;
  for (const auto& c : cases) {
    const std::string name = folder / ("d" + std::to_string(++number));
    std::string tail;
    for (const State& state : {c.drawing, c.copy, c.second}) {
      if (state.age >= 0) {
        write_bytes(name + tail, state.text);
        fs::last_write_time(name + tail, present - std::chrono::seconds(state.age));
        fs::permissions(name + tail, state.rights);
      }
      tail += '~';
    }
    EXPECT_EQ(copia_recuperabile(name), *c.offered == 0 ? "" : name + c.offered) << number;
  }
}

TEST(Recupero, LinkThatLeadsNowhereAndFolder) {
  const TestFolder folder;
  write_bytes(folder / "vero.dis~", "vecchio");
  fs::create_symlink("vero.dis", folder / "a.dis");
  EXPECT_EQ(copia_recuperabile(folder / "a.dis"), folder / "vero.dis~");
  fs::create_directory(folder / "cartella");
  write_bytes(folder / "cartella~", "vecchio");
  EXPECT_EQ(copia_recuperabile(folder / "cartella"), "");
  // What is no file at the first name hides no copy at the next one.
  fs::create_directory(folder / "b.dis~");
  write_bytes(folder / "b.dis~~", "vecchio");
  EXPECT_EQ(copia_recuperabile(folder / "b.dis"), folder / "b.dis~~");
}

TEST(Recupero, ADrawingIsUnreadableUntilItIsComplete) {
  const TestFolder folder;
  const std::string name = folder / "a.dis";
  const auto rights = [&] { return fs::status(name).permissions(); };
  const std::string whole = "disegno";
  const auto save = [&] {
    sostituzione s(name);
    s.scrivi(std::as_bytes(std::span(whole)));
    EXPECT_EQ(rights(), fs::perms{0200});
    s.concludi();
  };
  write_bytes(folder / "altro", "x");
  save();
  EXPECT_EQ(rights(), fs::status(folder / "altro").permissions());
  // What an interrupted save left is no model for the next one.
  fs::permissions(name, fs::perms{0200});
  save();
  EXPECT_EQ(rights(), fs::status(folder / "altro").permissions());
}

}  // namespace
}  // namespace trelvo
