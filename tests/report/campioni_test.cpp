// Small files in the manner of other word processors, and thousands of damaged ones made from them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "report/caricamento.h"
#include "report/descrizione.h"
#include "report/rtf_lettura.h"
#include "report/rtf_scrittura.h"

namespace trelvo {
namespace {

std::string contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> samples() {
  std::vector<std::filesystem::path> found;
  for (const auto& entry : std::filesystem::directory_iterator(TRELVO_REPORT_SAMPLES)) {
    if (entry.path().extension() == ".rtf") found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

TEST(Campioni, readAsTold) {
  ASSERT_FALSE(samples().empty());
  for (std::filesystem::path sample : samples()) {
    const relazione report = leggi_relazione(contents(sample));
    EXPECT_EQ(fault_of(report), "") << sample;
    EXPECT_EQ(described(report), contents(sample.replace_extension(".txt"))) << sample;
  }
}

std::string damaged(std::string bytes, std::mt19937& random) {
  static const std::string tokens[] = {
      "{",       "}",      "\\",    "{\\*",        "\\'",   "\\u", "\\bin9 ",           "\\par ", "-", "99999999999",
      "\\uc255", "\\cell", "\\row", "{\\listtext", "{\\pn", ";",   std::string(1, '\0')};
  for (auto times = 1 + random() % 6; times > 0 && !bytes.empty(); --times) {
    const std::size_t at = random() % bytes.size();
    const std::size_t count = random() % 20;
    switch (random() % 5) {
      case 0:
        bytes[at] = static_cast<char>(random());
        break;
      case 1:
        bytes.erase(at, count);
        break;
      case 2:
        bytes.insert(at, tokens[random() % std::size(tokens)]);
        break;
      case 3:
        bytes.insert(at, bytes.substr(random() % bytes.size(), count));
        break;
      default:
        if (random() % 8 == 0) bytes.resize(at);
    }
  }
  return bytes;
}

TEST(Campioni, damagedOnesReadAsSoundReportsThatCanBeSaved) {
  std::mt19937 random(1);
  for (const auto& sample : samples()) {
    const std::string whole = contents(sample);
    for (int i = 0; i < 2000; ++i) {
      const std::string bytes = damaged(whole, random);
      const relazione report = leggi_rtf(bytes);
      ASSERT_EQ(fault_of(report), "") << bytes;
      ASSERT_TRUE(leggi_rtf(scrivi_rtf(report)) == report) << bytes;
    }
  }
}

}  // namespace
}  // namespace trelvo
