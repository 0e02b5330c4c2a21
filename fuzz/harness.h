// What the fuzzers share: a folder in memory, a program without a screen, and a check that stops the run.
#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "app/app.h"
#include "document/trelvobas.h"
#include "support/desktop_finto.h"

namespace trelvo {

// Of this process alone, in memory where there is such a place.
inline const std::string& scratch_folder() {
  struct Folder {
    std::string path = (access("/dev/shm", W_OK) == 0 ? "/dev/shm" : std::filesystem::temp_directory_path().string()) +
                       "/trelvo_fuzz_" + std::to_string(getpid());
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
  };
  static const Folder folder;
  return folder.path;
}

inline std::string scratch_file(const std::string& name) { return scratch_folder() + "/" + name; }

inline void write_bytes(const std::string& path, const void* data, std::size_t size) {
  std::ofstream(path, std::ios::binary).write(static_cast<const char*>(data), static_cast<std::streamsize>(size));
}

inline std::string read_bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// The whole program with its frame, on a small screen.
struct FuzzProgram {
  FakeDesktop desktop;
  trelvobas bas{desktop, scratch_folder()};
  explicit FuzzProgram(float width = 600, float height = 400) {
    desktop.client = {width, height};
    prepara(bas);
    evento(bas, [&] { Main(bas, ""); });
  }
  template <class Action>
  void event(Action&& action) {
    evento(bas, std::forward<Action>(action));
  }
  distipo& document() { return *bas.attivo(); }
  void open(const std::string& path) {
    desktop.files.push_back(path);
    event([&] { scegli(bas.frmMain.gestfile(2)); });
  }
  // Under another name; false if it refused.
  bool save(const std::string& path) {
    std::filesystem::remove(path);
    desktop.files.push_back(path);
    const std::size_t errors = desktop.errors.size();
    event([&] { scegli(document().opfile(4)); });
    desktop.files.clear();
    return desktop.errors.size() == errors && std::filesystem::exists(path);
  }
};

// The object records of a drawing file. The view depends on the window, and the vertex count at a record's end, where
// it means nothing, on what was read or written before.
inline std::string records_of(const std::string& path) {
  constexpr std::size_t slot = 242;
  constexpr std::size_t header = 11 * slot;
  std::string bytes = read_bytes(path);
  bytes.erase(0, header);
  for (std::size_t at = slot; at <= bytes.size(); at += slot) bytes.replace(at - 2, 2, "  ");
  return bytes;
}

// A document saved, reopened and saved again has the same objects.
inline void require_stable_save(FuzzProgram& program) {
  const std::string first = scratch_file("first.DIS");
  const std::string second = scratch_file("second.DIS");
  if (!program.save(first)) return;
  program.open(first);
  require(program.document().Caption.get() == first, "a saved drawing opens");
  if (!program.save(second)) return;
  require(records_of(first) == records_of(second), "a reopened drawing has the same objects");
}

}  // namespace trelvo
