#include "platform/qt/command_line.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace trelvo {
namespace {

TEST(CommandLine, Read) {
  const std::string here = std::filesystem::current_path().string();
  const struct {
    std::vector<std::string> arguments;
    std::string folder, script, file;
  } table[] = {
      {{}, "", "", ""},
      {{"--folder", "a b", "d.DIS"}, "a b", "", here + "/d.DIS"},
      {{"--folder=x", "/tmp/è uno.txt"}, "x", "", "/tmp/è uno.txt"},
      {{"\"/tmp/two words.DIS\""}, "", "", "/tmp/two words.DIS"},
      {{"--script", "-"}, "", "-", ""},
      {{"--script=s.tsc", "--folder", "-x"}, "-x", "s.tsc", ""},
      {{"--", "--help"}, "", "", here + "/--help"},
      {{"-"}, "", "", here + "/-"},
  };
  for (const auto& row : table) {
    const CommandLine line = read_command_line(row.arguments);
    SCOPED_TRACE(testing::PrintToString(row.arguments));
    EXPECT_EQ(line.folder, row.folder);
    EXPECT_EQ(line.script, row.script);
    EXPECT_EQ(line.file, row.file);
    EXPECT_FALSE(line.help || line.version);
  }
  EXPECT_TRUE(read_command_line({"--help"}).help);
  const CommandLine report = read_command_line({"--relazione", "a.rtf"});
  EXPECT_TRUE(report.report);
  EXPECT_EQ(report.file, here + "/a.rtf");
  EXPECT_TRUE(read_command_line({"--version"}).version);
}

TEST(CommandLine, Refused) {
  const std::vector<std::string> table[] = {
      {"--wrong"},
      {"-x"},
      {"--folder"},
      {"--folder="},
      {"--script"},
      {"--script=", "x"},
      {"a", "b"},
      {"\"\""},
      {"--script", "s", "f.DIS"},
      {"--script", "s", "--relazione"},
      {"--folders=x"},
  };
  for (const auto& arguments : table) {
    EXPECT_THROW(read_command_line(arguments), CommandLineError) << testing::PrintToString(arguments);
  }
}

}  // namespace
}  // namespace trelvo
