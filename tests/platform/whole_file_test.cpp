#include "platform/whole_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/runtime_error.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

class WholeFile : public testing::Test {
 protected:
  WholeFile() : folder_(fs::temp_directory_path() / ("trelvo_whole_" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
  }
  ~WholeFile() override { fs::remove_all(folder_); }
  std::string in(const std::string& name) const { return (folder_ / name).string(); }
  std::size_t count() const { return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {})); }

  template <class Action>
  static int error_of(Action&& action) {
    try {
      action();
      return 0;
    } catch (const RuntimeError& error) {
      return error.number();
    }
  }

 private:
  fs::path folder_;
};

TEST_F(WholeFile, isReplacedWithItsRightsAndBehindItsLink) {
  replace_whole_file(in("a"), "old");
  chmod(in("a").c_str(), 0640);
  fs::create_symlink("a", in("link"));
  std::ofstream(in("a~")) << "someone else's";
  const std::string bytes(200000, '\0');
  replace_whole_file(in("link"), bytes);
  EXPECT_TRUE(fs::is_symlink(in("link")));
  EXPECT_EQ(read_whole_file(in("a"), 200000), bytes);
  EXPECT_EQ(read_whole_file(in("a~"), 100), "someone else's");
  EXPECT_EQ(static_cast<unsigned>(fs::status(in("a")).permissions()), 0640U);
  EXPECT_EQ(count(), 3U);
}

TEST_F(WholeFile, isMadeWhereALinkLeadsWithTheRightsOfANewFile) {
  fs::create_symlink("new", in("second"));
  fs::create_symlink(in("second"), in("first"));
  const mode_t mask = umask(0027);
  replace_whole_file(in("first"), "text");
  umask(mask);
  EXPECT_TRUE(fs::is_symlink(in("first")) && fs::is_symlink(in("second")));
  EXPECT_EQ(read_whole_file(in("new"), 100), "text");
  EXPECT_EQ(static_cast<unsigned>(fs::status(in("new")).permissions()), 0640U);
}

// The system ends the process when its file grows past the limit.
TEST_F(WholeFile, aPartThatAKilledProcessLeavesIsNotReadable) {
  replace_whole_file(in("a"), "old");
  const auto killed = [&] {
    constexpr rlimit no_core{0, 0};
    constexpr rlimit small_file{1000, 1000};
    setrlimit(RLIMIT_CORE, &no_core);
    setrlimit(RLIMIT_FSIZE, &small_file);
    replace_whole_file(in("a"), std::string(5000, 'x'));
  };
  EXPECT_EXIT(killed(), testing::KilledBySignal(SIGXFSZ), "");
  EXPECT_EQ(read_whole_file(in("a"), 100), "old");
  EXPECT_EQ(fs::file_size(in("a~")), 1000U);
  EXPECT_EQ(static_cast<unsigned>(fs::status(in("a~")).permissions()) & 0444U, 0U);
  replace_whole_file(in("a"), "new");
  EXPECT_EQ(read_whole_file(in("a"), 100), "new");
}

TEST_F(WholeFile, whatCannotBeReadOrWrittenIsTold) {
  replace_whole_file(in("a"), "old");
  EXPECT_EQ(error_of([&] { read_whole_file(in("a"), 2); }), error_no_memory);
  EXPECT_EQ(error_of([&] { read_whole_file(in("b"), 9); }), error_file_not_found);
  EXPECT_EQ(error_of([&] { read_whole_file(in(""), 9); }), error_path_access);
  EXPECT_EQ(error_of([&] { read_whole_file("", 9); }), error_file_name);
  EXPECT_EQ(error_of([&] { read_whole_file("/dev/null", 9); }), error_device_io);
  EXPECT_EQ(error_of([&] { replace_whole_file(in("none/b"), "x"); }), error_file_not_found);
  EXPECT_EQ(error_of([&] { replace_whole_file(in(""), "x"); }), error_path_access);
  EXPECT_EQ(error_of([&] { replace_whole_file("/dev/full", "x"); }), error_disk_full);
  EXPECT_EQ(count(), 1U);
}

}  // namespace
}  // namespace trelvo
