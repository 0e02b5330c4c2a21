#include "files/sostituzione.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "files/errori_file.h"
#include "files/recupero.h"
#include "platform/whole_file.h"
#include "test_program.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

std::span<const std::byte> bytes(const std::string& text) { return std::as_bytes(std::span(text)); }

TEST(Sostituzione, NewTakesThePlaceOfOld) {
  const TestFolder folder;
  const std::string name = folder / "a.dis";
  write_bytes(name, "vecchio e lungo");
  fs::permissions(name, fs::perms{0600});
  sostituzione s(name);
  s.scrivi(bytes("nuovo"));
  EXPECT_EQ(read_bytes(name + "~"), "vecchio e lungo");
  s.concludi();
  EXPECT_EQ(read_bytes(name), "nuovo");
  EXPECT_EQ(fs::status(name).permissions(), fs::perms{0600});
  EXPECT_FALSE(fs::exists(name + "~"));
}

TEST(Sostituzione, BrokenOffKeepsTheOldAside) {
  const TestFolder folder;
  const std::string name = folder / "a.dis";
  write_bytes(name, "vecchio");
  for (const std::string tail : {"~", "~~"}) {
    write_bytes(name, "vecchio" + tail);
    {
      sostituzione s(name);
      s.scrivi(bytes("nuo"));
      EXPECT_NE(s.annotato(error_disk_full).text().find(name + tail + "\""), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(name));
  }
  EXPECT_EQ(read_bytes(name + "~"), "vecchio~");
  EXPECT_EQ(read_bytes(name + "~~"), "vecchio~~");
}

TEST(Sostituzione, LongestNameCanBeKeptToo) {
  const TestFolder folder;
  for (const std::string& name :
       {folder / std::string(255, 'n'), folder / (std::string(100, 'n') + "à" + std::string(153, 'n'))}) {
    write_bytes(name, "vecchio");
    { const sostituzione s(name); }
    const std::string kept = copia_recuperabile(name);
    ASSERT_FALSE(kept.empty());
    EXPECT_EQ(read_bytes(kept), "vecchio");
  }
  EXPECT_EQ(name_beside("a/" + std::string(252, 'n') + "àx", 3), "a/" + std::string(252, 'n') + "~~~")
      << "no half letter";
}

TEST(Sostituzione, WhatMayNotBeWrittenStays) {
  constexpr uid_t nobody = 65534;
  const TestFolder folder;
  const std::string name = folder / "a.dis";
  write_bytes(name, "vecchio");
  fs::permissions(name, fs::perms{0444});
  fs::permissions(fs::path(name).parent_path(), fs::perms{0777});
  const bool administrator = geteuid() == 0;
  ASSERT_EQ(administrator ? seteuid(nobody) : 0, 0);
  int error = 0;
  try {
    const sostituzione s(name);
  } catch (const RuntimeError& e) {
    error = e.number();
  }
  ASSERT_EQ(administrator ? seteuid(0) : 0, 0);
  EXPECT_EQ(error, error_permission);
  EXPECT_EQ(read_bytes(name), "vecchio");
  EXPECT_FALSE(fs::exists(name + "~"));
}

TEST(Sostituzione, LinkStaysALink) {
  const TestFolder folder;
  write_bytes(folder / "vero.dis", "vecchio");
  fs::create_symlink(folder / "vero.dis", folder / "a.dis");
  sostituzione s(folder / "a.dis");
  s.scrivi(bytes("nuovo"));
  s.concludi();
  EXPECT_TRUE(fs::is_symlink(folder / "a.dis"));
  EXPECT_EQ(read_bytes(folder / "vero.dis"), "nuovo");
}

TEST(AccessoFile, OpeningErrors) {
  const TestFolder folder;
  write_bytes(folder / "file", "x");
  fs::create_directory(folder / "cartella");
  const struct {
    std::string name;
    int reading;
    int writing;
  } cases[] = {
      {"", error_file_name, error_file_name},
      {(folder / "a") + std::string("\0b", 2), error_file_name, error_file_name},
      {folder / std::string(300, 'n'), error_file_name, error_file_name},
      {folder / "manca", error_file_not_found, 0},
      {folder / "manca/file", error_path_not_found, error_path_not_found},
      {folder / "file/sotto", error_path_not_found, error_path_not_found},
      {folder / "cartella", error_path_access, error_path_access},
      {"/dev/zero", error_device_io, 0},
      {"/dev/full", error_device_io, error_disk_full},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(error_of([&] { fileaperto(c.name, fileaperto::modo::lettura); }), c.reading) << c.name;
    EXPECT_EQ(leggibile(c.name), c.reading == 0) << c.name;
    EXPECT_EQ(error_of([&] {
                sostituzione s(c.name);
                s.scrivi(bytes("x"));
                s.concludi();
              }),
              c.writing)
        << c.name;
  }
  EXPECT_EQ(error_of([] { throw errore_apertura(EACCES, "/"); }), error_permission);
}

TEST(AccessoFile, ProvingWritableKeepsContents) {
  const TestFolder folder;
  write_bytes(folder / "a", "contenuto");
  EXPECT_TRUE(scrivibile(folder / "a"));
  EXPECT_EQ(read_bytes(folder / "a"), "contenuto");
  EXPECT_TRUE(scrivibile(folder / "nuovo"));
  EXPECT_FALSE(scrivibile(folder / "manca/nuovo"));
  EXPECT_FALSE(scrivibile(folder.name()));
  EXPECT_FALSE(scrivibile(""));
}

}  // namespace
}  // namespace trelvo
