#include "platform/qt/program_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/qt/command_line.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public testing::Test {
 protected:
  ProgramFolder() {
    std::string name = (fs::temp_directory_path() / "trelvo.XXXXXX").string();
    root_ = mkdtemp(name.data());
    fs::create_directory(root_ / "bin");
  }
  ~ProgramFolder() override { fs::remove_all(root_); }
  std::string in(const char* name) const { return (root_ / name).string(); }

  fs::path root_;
};

TEST_F(ProgramFolder, Order) {
  const struct {
    std::string wished, executable, config, home, chosen;
  } table[] = {
      {in("w"), in("bin"), in("c"), in("h"), in("w")},
      {"", in("bin"), in("c"), in("h"), in("bin")},
      {"", in("none"), in("c"), in("h"), in("c/trelvo")},
      {"", in("none"), "", in("h"), in("h/.config/trelvo")},
      {"", in("none"), "relative", in("h"), in("h/.config/trelvo")},
  };
  for (const auto& row : table) {
    EXPECT_EQ(choose_folder(row.wished, row.executable, row.config, row.home), row.chosen);
    EXPECT_TRUE(fs::is_directory(row.chosen));
  }
}

TEST_F(ProgramFolder, InstalledForAllUsers) {
  fs::create_directories(root_ / "share/applications");
  std::ofstream(in("share/applications/trelvo.desktop")) << "[Desktop Entry]\n";
  EXPECT_EQ(choose_folder("", in("bin"), in("c"), in("h")), in("c/trelvo"));
  EXPECT_EQ(choose_folder(in("w"), in("bin"), in("c"), in("h")), in("w"));
}

TEST_F(ProgramFolder, BarredByAFile) {
  std::ofstream(in("file")) << "x";
  EXPECT_THROW(choose_folder(in("file/sub"), "", "", ""), CommandLineError);
  EXPECT_THROW(choose_folder(in("file"), "", "", ""), CommandLineError);
  // A user without a place for settings still has a program.
  EXPECT_EQ(choose_folder("", in("none"), in("file"), ""), in("file/trelvo"));
}

}  // namespace
}  // namespace trelvo
