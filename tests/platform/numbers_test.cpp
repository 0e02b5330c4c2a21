#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <charconv>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>

#include "platform/runtime_error.h"

namespace trelvo {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
const RegionalFormat italian;
const RegionalFormat english{".", ","};
const RegionalFormat french{",", "\u202F"};

template <class Routine>
int error_of(Routine routine) {
  try {
    routine();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Numbers, PrefixReadsTheLeadingNumber) {
  struct Row {
    const char* text;
    double value;
  };
  const Row rows[] = {
      {"", 0},
      {"abc", 0},
      {"3", 3},
      {"3,4,5", 3},
      {" - 1 2\t. 5 x", -12.5},
      {"+7", 7},
      {".5", .5},
      {"5.", 5},
      {"-.", 0},
      {"1.2.3", 1.2},
      {"1E3", 1000},
      {"1d-2", .01},
      {"1 e + 2", 100},
      {"1e", 1},
      {"1e+", 1},
      {"2ex", 2},
      {"e5", 0},
      {"-e5", 0},
      {"--5", 0},
      {"1e999", inf},
      {"-1e999", -inf},
      {"1e-999", 0},
      {"0e99999", 0},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {"1\n2", 1},
      {"0.1", .1},
      {"1e99999999999999999999", inf},
      {"1e-99999999999999999999", 0},
  };
  for (const Row& row : rows) EXPECT_EQ(numeric_prefix(row.text), row.value) << row.text;
  const std::string zeros(400, '0');
  EXPECT_EQ(numeric_prefix("0." + zeros + "1"), 0);
  EXPECT_EQ(numeric_prefix("1" + zeros), inf);
  EXPECT_DOUBLE_EQ(numeric_prefix("0." + zeros + "1e401"), 1);
}

TEST(Numbers, TextHasFifteenDigits) {
  struct Row {
    double value;
    const char* text;
  };
  const Row rows[] = {
      {0, " 0"},
      {-0.0, " 0"},
      {15, " 15"},
      {-3, "-3"},
      {0.5, " .5"},
      {-0.5, "-.5"},
      {0.1 + 0.2, " .3"},
      {1e14, " 100000000000000"},
      {1e15, " 1E+15"},
      {1e-5, " 1E-05"},
      {1.5e-5, " 1.5E-05"},
      {1e-4, " .0001"},
      {1e100, " 1E+100"},
      {1.0 / 3, " .333333333333333"},
      {inf, " INF"},
      {-inf, "-INF"},
      {nan, " NAN"},
      {-nan, " NAN"},
      {10.05, " 10.05"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(number_text(row.value), row.text);
    const std::string text = row.text;
    EXPECT_EQ(number_text_trimmed(row.value), text[0] == ' ' ? text.substr(1) : text);
  }
  EXPECT_EQ(number_text(0.1F), " .1");
  EXPECT_EQ(number_text(1.0F / 3), " .3333333");
  EXPECT_EQ(number_text_trimmed(1e7F), "1E+07");
  EXPECT_EQ(number_text_trimmed(1234567.0F), "1234567");
}

TEST(Numbers, RegionalReading) {
  struct Row {
    const char* text;
    const RegionalFormat& format;
    double value;
  };
  const Row rows[] = {
      {"12,5", italian, 12.5},
      {"  -12,5  ", italian, -12.5},
      {"1.234.567,8", italian, 1234567.8},
      {"1.5", italian, 15},
      {",5", italian, .5},
      {"5,", italian, 5},
      {"12.5", english, 12.5},
      {"1,5", english, 15},
      {"1\u202F234,5", french, 1234.5},
      {"1E-05", italian, 1e-5},
      {"+3", italian, 3},
      {"1e-999", italian, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(regional_number(row.text, row.format), row.value) << row.text;
    EXPECT_TRUE(is_regional_number(row.text, row.format)) << row.text;
  }
}

TEST(Numbers, RegionalReadingRefusesWhatIsNoNumber) {
  const char* const texts[] = {"",   " ",  "abc",  "1,2,3", "12x",   "1 2", ",",   "-",   "1e",  "1e5x",
                               ".5", "5.", "1..2", "1.,5",  "1,5.2", "--1", "- 1", "\t1", "inf", "NAN"};
  for (const char* text : texts) {
    EXPECT_EQ(error_of([&] { regional_number(text, italian); }), 13) << text;
    EXPECT_FALSE(is_regional_number(text, italian)) << text;
  }
  EXPECT_EQ(error_of([] { regional_number("-1e999", italian); }), 6);
  EXPECT_FALSE(is_regional_number("1e999", italian));
}

TEST(Numbers, RegionalWriting) {
  EXPECT_EQ(regional_text(0.5, italian), "0,5");
  EXPECT_EQ(regional_text(-0.25, english), "-0.25");
  EXPECT_EQ(regional_text(1e15, italian), "1E+15");
  EXPECT_EQ(regional_text(1234.5, italian), "1234,5");
  EXPECT_EQ(regional_text(0.1F, italian), "0,1");
  EXPECT_EQ(regional_text(0.0, italian), "0");
  EXPECT_EQ(regional_text(inf, italian), "INF");
}

TEST(Numbers, FixedDecimals) {
  struct Row {
    double value;
    int decimals;
    const char* text;
  };
  const Row rows[] = {
      {0, 2, "0,00"},
      {5, 3, "5,000"},
      {53.13010235, 4, "53,1301"},
      {.125, 2, "0,13"},
      {-.125, 2, "-0,13"},
      {2.675, 2, "2,68"},
      {1.005, 2, "1,01"},
      {.5, 0, "1"},
      {9.995, 2, "10,00"},
      {99.999, 2, "100,00"},
      {-.001, 2, "0,00"},
      {1e-300, 2, "0,00"},
      {1e20, 1, "100000000000000000000,0"},
      {.004999, 2, "0,00"},
      {.05, 1, "0,1"},
      {.005, 1, "0,0"},
      {inf, 2, "INF"},
      {nan, 2, "NAN"},
  };
  for (const Row& row : rows) EXPECT_EQ(fixed_text(row.value, row.decimals, italian), row.text);
  EXPECT_EQ(fixed_text(1.5, 2, english), "1.50");
  EXPECT_EQ(fixed_text(1234567.891, 2, italian, true), "1.234.567,89");
  EXPECT_EQ(fixed_text(-123456, 2, english, true), "-123,456.00");
  EXPECT_EQ(fixed_text(999.999, 2, italian, true), "1.000,00");
  EXPECT_EQ(fixed_text(123, 2, italian, true), "123,00");
}

TEST(Numbers, RoundingGoesToTheEvenNeighbour) {
  EXPECT_EQ(round_to_int32(2.5), 2);
  EXPECT_EQ(round_to_int32(3.5), 4);
  EXPECT_EQ(round_to_int32(-0.5), 0);
  EXPECT_EQ(round_to_int16(32767.4), 32767);
  EXPECT_EQ(round_to_int16(-32768.5), -32768);
  EXPECT_EQ(round_even(-1.5), -2);
  for (const double value : {32767.5, -32769.0, inf, nan}) {
    EXPECT_EQ(error_of([&] { round_to_int16(value); }), 6) << value;
  }
  for (const double value : {2147483647.5, -2147483649.0, -inf, nan}) {
    EXPECT_EQ(error_of([&] { round_to_int32(value); }), 6) << value;
  }
}

TEST(Numbers, ClampedRoundingStaysInTheType) {
  EXPECT_EQ(round_clamped(2.5), 2);
  EXPECT_EQ(round_clamped(-7.6), -8);
  EXPECT_EQ(round_clamped(1e300), INT32_MAX);
  EXPECT_EQ(round_clamped(-inf), INT32_MIN);
  EXPECT_EQ(round_clamped(2147483646.7), INT32_MAX);
  EXPECT_EQ(round_clamped(nan), 0);
}

TEST(Numbers, ShortestTextIsPlainWhereItCanBe) {
  struct Row {
    double value;
    const char* text;
  };
  const Row rows[] = {
      {0, "0"},
      {-0.0, "-0"},
      {15000, "15000"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.30000000000000004"},
      {1e16, "10000000000000000"},
      {1e20, "1e+20"},
      {1e-4, "0.0001"},
      {1.5e-5, "1.5e-05"},
      {-12.25, "-12.25"},
      {176.4, "176.4"},
      {inf, "inf"},
      {-inf, "-inf"},
      {nan, "nan"},
      {5e11, "500000000000"},
  };
  for (const Row& row : rows) EXPECT_EQ(shortest_text(row.value), row.text);
  EXPECT_EQ(shortest_text(0.1F), "0.1");
  EXPECT_EQ(shortest_text(16777216.0F), "16777216");
  EXPECT_EQ(shortest_text(1.0F / 3), "0.33333334");
}

TEST(Numbers, ShortestTextReadsBackEqual) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    const std::string text = shortest_text(value);
    double back = 0;
    std::from_chars(text.data(), text.data() + text.size(), back);
    ASSERT_EQ(back, value) << text;
  }
}

// A window system sets the C library's locale; a decimal comma there must change nothing here.
TEST(Numbers, TheLibraryLocaleHasNoSay) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* name : {"it_IT.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) continue;
    EXPECT_EQ(number_text(1.5), " 1.5") << name;
    EXPECT_EQ(numeric_prefix("1.5"), 1.5) << name;
    EXPECT_EQ(fixed_text(1.5, 1, italian), "1,5") << name;
    EXPECT_EQ(shortest_text(1.5), "1.5") << name;
  }
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace trelvo
