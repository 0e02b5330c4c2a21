// trelvo_random_user [--seed N] [--steps N] [--session N] [--seconds N] [--trail FILE]: sessions of N steps each, one
// seed after the other, until all steps are played or the time is up. What fails is printed as a script, with what it
// printed. The trail is the script of the session at hand, for one that ends the process.
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "random_user/outside.h"
#include "random_user/random_session.h"

namespace {

namespace fs = std::filesystem;

struct Options {
  std::uint64_t seed = 1;
  long steps = 20000;
  int session = 500;
  double seconds = 1e9;
  std::string trail;
};

bool read_options(int argc, char** argv, Options& options) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string name = argv[i];
    const double value = std::strtod(argv[i + 1], nullptr);
    if (name == "--seed") {
      options.seed = static_cast<std::uint64_t>(value);
    } else if (name == "--steps") {
      options.steps = static_cast<long>(value);
    } else if (name == "--session") {
      options.session = static_cast<int>(value);
    } else if (name == "--seconds") {
      options.seconds = value;
    } else if (name == "--trail") {
      options.trail = argv[i + 1];
    } else {
      return false;
    }
  }
  return argc % 2 == 1;
}

// Each session begins in the same folder, in memory where there is such a place.
class Folder {
 public:
  Folder()
      : path_((access("/dev/shm", W_OK) == 0 ? fs::path("/dev/shm") : fs::temp_directory_path()) /
              ("trelvo_random_" + std::to_string(getpid()))) {}
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { remove(); }

  void make() const {
    remove();
    fs::create_directories(path_ / "cartella");
    fs::create_directories(path_ / trelvo::fleeting_folder);
    fs::current_path(path_);
    fs::copy_file(TRELVO_SEEDS "/dis/all_classes.DIS", "pronto.DIS");
    fs::copy_file(TRELVO_SEEDS "/txt/all_classes.txt", "testo.txt");
    fs::copy_file(TRELVO_SEEDS "/dis/all_classes.DIS", "copia.DIS~");
    fs::copy_file(TRELVO_SEEDS "/dis/all_classes.DIS", "rotto.DIS");
    fs::resize_file("rotto.DIS", fs::file_size("rotto.DIS") / 2 + 77);
    std::ofstream("vuoto.DIS").flush();
    fs::copy_file(TRELVO_SEEDS "/rtf/writer.rtf", "pronto.rtf");
    fs::copy_file(TRELVO_SEEDS "/rtf/word.rtf", "rotto.rtf");
    fs::resize_file("rotto.rtf", fs::file_size("rotto.rtf") / 2);
  }

 private:
  void remove() const {
    std::error_code ignored;
    fs::current_path(path_.parent_path(), ignored);
    fs::remove_all(path_, ignored);
  }
  fs::path path_;
};

void tell(const trelvo::Played& played, std::uint64_t seed) {
  for (const std::string& line : played.lines) std::cout << line << '\n';
  constexpr std::size_t enough = 4000;
  const std::size_t from = played.output.size() > enough ? played.output.size() - enough : 0;
  std::cerr << "The last of what was printed:\n" << played.output.substr(from);
  std::cerr << "Seed " << seed << ", step " << played.steps << ": " << played.broken << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!read_options(argc, argv, options)) {
    std::cerr << "usage: trelvo_random_user [--seed N] [--steps N] [--session N] [--seconds N] [--trail FILE]\n";
    return 2;
  }
  const Folder folder;
  const auto began = std::chrono::steady_clock::now();
  const auto seconds = [&] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count(); };
  long steps = 0;
  long reopened = 0;
  std::size_t sheets = 0;
  for (; steps < options.steps && seconds() < options.seconds; ++options.seed) {
    folder.make();
    std::ofstream trail;
    if (!options.trail.empty()) trail.open(options.trail);
    trelvo::Played played = trelvo::play(options.seed, options.session, trail);
    steps += played.steps;
    reopened += played.reopened;
    sheets += played.sheets.size();
    if (played.broken.empty()) {
      folder.make();
      played.broken = trelvo::differs_by_plain_walks(played);
    }
    if (!played.broken.empty()) {
      tell(played, options.seed);
      return 1;
    }
  }
  std::cerr << steps << " steps in " << seconds() << " s, " << reopened << " files read again, " << sheets
            << " sheets; next seed " << options.seed << '\n';
  return 0;
}
