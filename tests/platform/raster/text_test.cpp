#include <gtest/gtest.h>

#include "fonts.h"
#include "picture.h"
#include "platform/raster/raster_text.h"

namespace trelvo {

namespace {

struct Page {
  BlockFonts fonts;
  Bitmap bitmap = blank(24, 20);

  void write(int height, int escapement, Point position, const std::string& text, const Background& back = {}) {
    Font font;
    font.face = "Arial";
    font.height = height;
    font.escapement = escapement;
    raster::draw_text(bitmap, fonts, {font, black, back}, position, text);
  }
};

TEST(Text, BlendsItsShapeAtItsPlace) {
  Page page;
  page.fonts.shape = {-1, 2, 3, 1, {255, 51, 0}};
  page.write(-8, 0, {5, 6}, "a");
  EXPECT_EQ(extent(page.bitmap), "4-5 8-8");
  EXPECT_EQ(pixel(page.bitmap, 4, 8), 0xFF000000);
  EXPECT_EQ(pixel(page.bitmap, 5, 8), 0xFFCCCCCC);
  page.write(-8, 0, {5, 6}, "a");
  EXPECT_EQ(pixel(page.bitmap, 5, 8), 0xFFA3A3A3);
}

TEST(Text, IsCutAtTheEdges) {
  struct Case {
    Point position;
    std::string extent;
  };
  const Case cases[] = {{{2, 3}, "2-9 3-10"},
                        {{-3, -5}, "0-4 0-2"},
                        {{20, 15}, "20-23 15-19"},
                        {{-2000000000, 3}, "nothing"},
                        {{3, 2000000000}, "nothing"}};
  for (const Case& c : cases) {
    Page page;
    page.write(-8, 0, c.position, "ab");
    EXPECT_EQ(extent(page.bitmap), c.extent) << c.position.x << ',' << c.position.y;
  }
}

TEST(Text, OutOfSightIsNotShaped) {
  Page page;
  page.write(-8, 0, {500, 3}, "ab");
  page.write(-8, 0, {3, 3}, "");
  EXPECT_TRUE(page.fonts.masks.empty());
}

TEST(Text, OpaqueBackgroundFillsTheTurnedCell) {
  struct Case {
    int escapement;
    std::string extent;
  };
  // A cell of 8 by 4 at (10, 10): along to the right, upwards, to the left and downwards.
  const Case cases[] = {{0, "10-17 10-13"}, {900, "10-13 2-9"}, {1800, "2-9 6-9"}, {2700, "6-9 10-17"}};
  for (const Case& c : cases) {
    Page page;
    page.fonts.shape = {0, 0, 1, 1, {0}};
    page.write(-4, c.escapement, {10, 10}, "abcd", {true, red});
    EXPECT_EQ(extent(page.bitmap), c.extent) << c.escapement;
    EXPECT_EQ(count_painted(page.bitmap), 32) << c.escapement;
    EXPECT_EQ(page.fonts.masks.back().escapement, c.escapement);
  }
  Page page;
  page.write(-4, 0, {10, 10}, "abcd", {true, red});
  EXPECT_EQ(row(page.bitmap, 11), "..........########......");
}

TEST(Text, LettersLargerThanAnyScreenAreMagnified) {
  struct Case {
    Point position;  // of a text of 1500000 by 1000000
    int painted;
  };
  const Case cases[] = {{{-1000, -1000}, 480},
                        {{-700000, -500000}, 480},
                        {{-1499000, -999000}, 480},
                        {{-1501000, -999990}, 0},
                        {{1000, -500000}, 0}};
  for (const Case& c : cases) {
    Page page;
    page.write(-1000000, 0, c.position, "abc");
    EXPECT_EQ(count_painted(page.bitmap), c.painted) << c.position.x << ',' << c.position.y;
    EXPECT_EQ(row(page.bitmap, 9), std::string(24, c.painted > 0 ? '#' : '.'));
    for (const Font& font : page.fonts.masks) EXPECT_LE(std::abs(font.height), 8000);
  }
}

}  // namespace

}  // namespace trelvo
