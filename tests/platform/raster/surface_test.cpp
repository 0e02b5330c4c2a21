#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "fonts.h"
#include "picture.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

namespace {

struct Screen {
  BlockFonts fonts;
  RasterSurface surface{fonts};

  explicit Screen(int columns = 20, int rows = 10) {
    surface.resize(static_cast<float>(columns * 15), static_cast<float>(rows * 15));
  }
  std::string kept() const { return extent(surface.Image()); }
  std::string shown() const { return extent(surface.screen()); }
};

TEST(Surface, ConvertsLengths) {
  const Screen screen;
  struct Case {
    double length;
    int from, to;
    float result;
  };
  const Case cases[] = {
      {1440, scale_twips, scale_pixels, 96},        {100, scale_pixels, scale_twips, 1500},
      {25.4, scale_millimetres, scale_twips, 1440}, {96, scale_pixels, scale_millimetres, 25.4F},
      {22.5, scale_twips, scale_pixels, 1.5F},      {0.1, scale_twips, scale_twips, 0.1F},
      {10, scale_twips, scale_pixels, 2.0F / 3},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(screen.surface.ScaleX(c.length, c.from, c.to), c.result) << c.length;
    EXPECT_EQ(screen.surface.ScaleY(c.length, c.from, c.to), c.result) << c.length;
  }
}

TEST(Surface, FontOfAnySizeHasAHeightThatCanBeNegated) {
  constexpr int tallest = std::numeric_limits<int>::max();
  const struct {
    float size;
    int height;
  } cases[] = {{12, -16}, {0, -1}, {-12, 16}, {3e38F, -tallest}, {-3e38F, tallest}};
  Screen screen;
  std::string traced;
  screen.surface.hDC().trace = [&](const std::string& call) { traced = call; };
  for (const auto& c : cases) {
    screen.surface.font.size = c.size;
    screen.surface.Print("x");
    EXPECT_TRUE(traced.starts_with("dc.TextOut height=" + std::to_string(c.height) + " ")) << traced;
  }
}

TEST(Surface, LinesKeepBothEndsAndRoundHalvesToTheEven) {
  struct Case {
    std::array<double, 4> line;
    float left, top;
    std::string extent;
  };
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  const Case cases[] = {
      {{0, 75, 60, 75}, 0, 0, "0-4 5-5"},         {{75, 75, 75, 75}, 0, 0, "5-5 5-5"},
      {{7.5, 22.5, 37.5, 22.5}, 0, 0, "0-2 2-2"}, {{115, 75, 160, 75}, 100, -15, "1-4 6-6"},
      {{-1e9, 30, 1e9, 30}, 0, 0, "0-19 2-2"},    {{none, 30, 60, 30}, 0, 0, "nothing"},
      {{-7.5, 0, 292.5, 0}, 0, 0, "0-19 0-0"},    {{-8, 0, -300, 0}, 0, 0, "nothing"},
  };
  for (const Case& c : cases) {
    Screen screen;
    screen.surface.ScaleLeft = c.left;
    screen.surface.ScaleTop = c.top;
    screen.surface.Line(c.line[0], c.line[1], c.line[2], c.line[3], black);
    EXPECT_EQ(screen.kept(), c.extent) << c.line[0];
  }
}

TEST(Surface, DrawsWithItsWidthAndStyle) {
  Screen screen(40, 20);
  screen.surface.DrawWidth = 4;
  screen.surface.Line(150, 150, 450, 150, black);
  EXPECT_EQ(screen.kept(), "8-31 8-11");
  screen.surface.Cls();
  screen.surface.PSet(150, 150, black);
  EXPECT_EQ(screen.kept(), "8-11 8-11");
  screen.surface.DrawWidth = 1;
  screen.surface.DrawStyle = 5;
  screen.surface.Cls();
  screen.surface.Line(0, 0, 300, 0, black);
  EXPECT_EQ(screen.kept(), "nothing");
  screen.surface.PSet(29, 31, black);
  EXPECT_EQ(screen.kept(), "2-2 2-2");
  screen.surface.DrawStyle = 2;
  screen.surface.Line(0, 0, 9 * 15, 0, black);
  EXPECT_EQ(row(screen.surface.Image(), 0).substr(0, 12), "###...###...");
}

TEST(Surface, FollowsItsScaleMode) {
  Screen screen;
  screen.surface.Line(150, 0, 150, 0, black);
  screen.surface.ScaleMode = scale_pixels;
  screen.surface.Line(12, 0, 12, 0, black);
  screen.surface.ScaleMode = scale_millimetres;
  screen.surface.Line(25.4 / 96 * 14, 0, 25.4 / 96 * 14, 0, black);
  EXPECT_EQ(row(screen.surface.Image(), 0), "..........#.#.#.....");
  screen.surface.resize(1440, 720);
  EXPECT_EQ(screen.surface.ScaleWidth, 25.4F);
  EXPECT_EQ(screen.surface.ScaleHeight, 12.7F);
}

TEST(Surface, KeepsTwoLayers) {
  Screen screen;
  RasterSurface& s = screen.surface;
  s.Line(0, 0, 0, 0, black);
  s.set_AutoRedraw(false);
  EXPECT_FALSE(s.has_transient());
  s.Line(60, 60, 60, 60, black);
  EXPECT_TRUE(s.has_transient());
  EXPECT_EQ(screen.kept(), "0-0 0-0");
  EXPECT_EQ(screen.shown(), "0-4 0-4");

  s.Cls();
  EXPECT_FALSE(s.has_transient());
  EXPECT_EQ(screen.shown(), "0-0 0-0");

  s.hDC().Polyline(thin, std::array{Point{3, 3}, Point{9, 3}});
  EXPECT_EQ(screen.shown(), "0-8 0-3");
  s.set_AutoRedraw(true);
  EXPECT_EQ(screen.shown(), "0-0 0-0");
  s.Cls();
  EXPECT_EQ(screen.kept(), "nothing");
}

TEST(Surface, BackColorWaitsForCls) {
  Screen screen;
  screen.surface.Line(0, 0, 0, 0, black);
  screen.surface.BackColor = red;
  EXPECT_EQ(screen.kept(), "0-0 0-0");
  screen.surface.set_AutoRedraw(false);
  screen.surface.Cls();
  EXPECT_EQ(screen.kept(), "0-0 0-0");
  screen.surface.set_AutoRedraw(true);
  screen.surface.Cls();
  EXPECT_EQ(row(screen.surface.Image(), 0), std::string(20, 'r'));
}

TEST(Surface, ResizingKeepsTheCommonPart) {
  Screen screen(4, 3);
  screen.surface.Line(0, 0, 45, 45, black);
  screen.surface.BackColor = red;
  screen.surface.resize(75, 30);
  EXPECT_EQ(picture(screen.surface.Image()), (Rows{"#...r", ".#..r"}));
  EXPECT_EQ(screen.surface.ScaleWidth, 75);
  screen.surface.resize(30, 45);
  EXPECT_EQ(picture(screen.surface.Image()), (Rows{"#.", ".#", "rr"}));
  screen.surface.resize(0, 0);
  screen.surface.Line(0, 0, 45, 45, black);
  screen.surface.Cls();
  EXPECT_TRUE(screen.surface.Image().pixels.empty());
}

TEST(Surface, TellsWhenItsPictureMayHaveChanged) {
  Screen screen;
  RasterSurface& s = screen.surface;
  std::uint64_t last = s.version();
  const auto grown = [&] { return s.version() > std::exchange(last, s.version()); };
  s.Line(0, 0, 15, 0, black);
  EXPECT_TRUE(grown());
  s.hDC().Ellipse(thin, {}, {0, 0}, {5, 5});
  EXPECT_TRUE(grown());
  s.BackColor = red;
  s.set_AutoRedraw(false);
  EXPECT_FALSE(grown());
  s.PSet(0, 0, black);
  EXPECT_TRUE(grown());
  s.set_AutoRedraw(true);
  EXPECT_TRUE(grown());
}

TEST(Surface, PrintsInItsOwnFont) {
  Screen screen(60, 30);
  RasterSurface& s = screen.surface;
  s.font = {"Courier", 12, true, true, false, true};
  s.ForeColor = red;
  s.CurrentX = 45;
  s.CurrentY = 60;
  s.Print("abc");
  EXPECT_EQ(screen.kept(), "3-26 4-19");
  EXPECT_EQ(pixel(s.Image(), 3, 4), pixel_of(red));
  EXPECT_EQ(screen.fonts.masks.back(), (Font{"Courier", -16, 0, 700, true, false, true}));

  EXPECT_EQ(s.TextWidth("abc"), 360);
  EXPECT_EQ(s.TextHeight("abc"), 240);
  s.ScaleMode = scale_pixels;
  EXPECT_EQ(s.TextWidth("abc"), 24);
  EXPECT_EQ(s.GetTextExtentPoint32A("ab").width, 16);
  s.font = {};
  s.TextHeight("a");
  EXPECT_EQ(screen.fonts.extents.back(), (Font{"Arial", -11, 0, 0, false, false, false}));
}

}  // namespace

}  // namespace trelvo
