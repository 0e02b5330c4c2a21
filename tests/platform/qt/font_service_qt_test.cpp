#include "platform/qt/font_service_qt.h"

#include <gtest/gtest.h>

#include <numeric>

namespace trelvo {
namespace {

Font arial(int height, int escapement = 0) { return {"Arial", height, escapement, 400, false, false, false}; }

double ink(const GlyphMask& mask) { return std::accumulate(mask.coverage.begin(), mask.coverage.end(), 0.0) / 255; }

// Height and ascent follow the face's own proportions, 0.905 and 0.212 of the character height.
TEST(FontServiceQt, CellHeight) {
  FontServiceQt fonts;
  const struct {
    int height, cell;
  } table[] = {{-10, 11}, {-100, 112}, {-1000, 1117}, {1, 1}, {10, 10}, {13, 13}, {100, 100}, {0, 16}};
  for (const auto& row : table) EXPECT_EQ(fonts.extent(arial(row.height), "Ag").height, row.cell) << row.height;
}

TEST(FontServiceQt, WidthGrowsWithTheLetters) {
  FontServiceQt fonts;
  EXPECT_EQ(fonts.extent(arial(-1000), "").width, 0);
  EXPECT_EQ(fonts.extent(arial(-1000), "i").width, 222);
  EXPECT_EQ(fonts.extent(arial(-1000), "W").width, 944);
  EXPECT_EQ(fonts.extent(arial(-1000), "Wi").width, 944 + 222);
  EXPECT_EQ(fonts.extent(arial(-100), "Wi").width, 117);
  EXPECT_EQ(fonts.extent(arial(-1000), "è").width, 556);
  EXPECT_EQ(fonts.extent(arial(-1000, 300), "W").width, 944);
}

TEST(FontServiceQt, MaskLiesInTheTurnedCell) {
  FontServiceQt fonts;
  const Size cell = fonts.extent(arial(-40), "Hg");
  const int w = cell.width;
  const int h = cell.height;
  const struct {
    int escapement, left, top, right, bottom;
  } table[] = {{0, 0, 0, w, h}, {900, 0, -w, h, 0}, {1800, -w, -h, 0, 0}, {2700, -h, 0, 0, w}, {-900, -h, 0, 0, w}};
  for (const auto& row : table) {
    const GlyphMask mask = fonts.mask(arial(-40, row.escapement), "Hg");
    SCOPED_TRACE(row.escapement);
    constexpr int margin = 2;
    EXPECT_GE(mask.left, row.left - margin);
    EXPECT_GE(mask.top, row.top - margin);
    EXPECT_LE(mask.left + mask.width, row.right + margin);
    EXPECT_LE(mask.top + mask.height, row.bottom + margin);
    EXPECT_NEAR(ink(mask), ink(fonts.mask(arial(-40), "Hg")), 2);
  }
}

TEST(FontServiceQt, StyleChangesTheInk) {
  FontServiceQt fonts;
  const double plain = ink(fonts.mask(arial(-100), "Testo"));
  Font bold = arial(-100);
  bold.weight = 700;
  Font underlined = arial(-100);
  underlined.underline = true;
  Font struck = arial(-100);
  struck.strikeout = true;
  EXPECT_GT(ink(fonts.mask(bold, "Testo")), plain * 1.2);
  EXPECT_GT(ink(fonts.mask(underlined, "Testo")), plain * 1.1);
  EXPECT_GT(ink(fonts.mask(struck, "Testo")), plain * 1.1);
  EXPECT_EQ(ink(fonts.mask(arial(-100), "Testo")), plain);
}

TEST(FontServiceQt, NothingToPaint) {
  FontServiceQt fonts;
  for (const char* text : {"", " ", "   "}) {
    EXPECT_EQ(ink(fonts.mask(arial(-20), text)), 0) << '"' << text << '"';
  }
}

TEST(FontServiceQt, MissingFaceFallsBack) {
  FontServiceQt fonts;
  Font font = arial(-20);
  font.face = "No face of this name";
  EXPECT_GT(fonts.extent(font, "abc").width, 0);
  EXPECT_GT(ink(fonts.mask(font, "abc")), 0);
}

TEST(FontServiceQt, GiantLettersStayInMemory) {
  FontServiceQt fonts;
  for (const int height : {-5000, -60000, -2000000000, 2000000000}) {
    for (const int escapement : {0, 450}) {
      const Font font = arial(height, escapement);
      EXPECT_LE(fonts.mask(font, "MMM").coverage.size(), 17U << 20) << height;
      EXPECT_GT(fonts.extent(font, "MMM").width, 5000) << height;
    }
  }
}

}  // namespace
}  // namespace trelvo
