#include "files/txt_numeri.h"

#include <gtest/gtest.h>

#include <bit>
#include <optional>
#include <random>

#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {
namespace {

// The bits of a number, or the error in its place.
template <class Reading>
std::string outcome(Reading&& reading) {
  try {
    return std::to_string(std::bit_cast<std::uint64_t>(reading()));
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.number());
  }
}

const RegionalFormat formats[] = {{",", "."}, {".", ","}, {",", "\u00A0"}, {"٫", "٬"}, {".", ""}};

TEST(TxtNumeri, AsTheRegionalSettingsSay) {
  const struct {
    const char* text;
    std::optional<double> italian;
    std::optional<double> english;
  } cases[] = {
      {"12", 12, 12},
      {"  -12,5 ", -12.5, -125},
      {"1.234,5", 1234.5, {}},
      {"12.5", 125, 12.5},
      {"+,5", .5, {}},
      {"5,", 5, {}},
      {"1E3", 1000, 1000},
      {"0,1234567890123456789", 0.1234567890123456789, 1234567890123456789},
      {"123456789012345678901234567890", 123456789012345678901234567890.0, 123456789012345678901234567890.0},
      {"", {}, {}},
      {"-", {}, {}},
      {",", {}, {}},
      {"1 2", {}, {}},
      {"\t1", {}, {}},
      {"0x1", {}, {}},
      {"inf", {}, {}},
      {"1,2,3", {}, 123},
  };
  for (const auto& c : cases) {
    for (const bool italian : {true, false}) {
      const std::optional<double> expected = italian ? c.italian : c.english;
      const std::string bits = expected ? outcome([&] { return *expected; }) : "error 13";
      EXPECT_EQ(outcome([&] { return numeritxt(formats[italian ? 0 : 1])(c.text); }), bits) << c.text;
    }
  }
  EXPECT_EQ(outcome([] { return numeritxt(formats[0])("1E999"); }), "error 6");
  EXPECT_EQ(numeritxt(formats[2])("1\xA0"
                                  "234"),
            1234);
}

TEST(TxtNumeri, NeverOtherwiseThanTheGeneralConversion) {
  std::mt19937 random(7);
  const std::string alphabet = "00112345678999,.,.-+ Ee\xA0\xD9";
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (std::size_t n = random() % 26; n > 0; --n) text += alphabet[random() % (random() % 4 ? 14 : alphabet.size())];
    if (random() % 3 == 0) text.insert(random() % (text.size() + 1), ",");
    if (random() % 4 == 0) text.insert(0, "-");
    const RegionalFormat& format = formats[random() % std::size(formats)];
    ASSERT_EQ(outcome([&] { return numeritxt(format)(text); }),
              outcome([&] { return regional_number(from_code_page(text), format); }))
        << text;
  }
}

}  // namespace
}  // namespace trelvo
