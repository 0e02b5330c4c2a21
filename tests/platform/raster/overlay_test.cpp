#include <gtest/gtest.h>

#include <array>

#include "fonts.h"
#include "picture.h"
#include "platform/raster/overlay_painter.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

namespace {

struct Overlays {
  BlockFonts fonts;
  RasterSurface surface{fonts};
  Form form{"form"};
  OverlayLine line{form, "Line1"};
  OverlayShape shape{form, "Shape1"};

  Overlays() {
    surface.resize(450, 300);
    surface.ScaleLeft = 1000;
    surface.ScaleTop = -500;
    line.X1 = 1030;
    line.Y1 = -425;
    line.X2 = 1330;
    line.Y2 = -425;
    shape.Left = 1075;
    shape.Top = -455;
    shape.Width = 195;
    shape.Height = 150;
  }
  Bitmap shown() const {
    Bitmap bitmap = surface.screen();
    paint_overlays(bitmap, surface, std::array{&line}, std::array{&shape});
    return bitmap;
  }
};

TEST(Overlay, ShowsWhatIsVisible) {
  Overlays o;
  EXPECT_EQ(extent(o.shown()), "nothing");
  o.line.Visible = true;
  EXPECT_EQ(extent(o.shown()), "2-22 5-5");
  o.line.Visible = false;
  o.shape.Visible = true;
  EXPECT_EQ(extent(o.shown()), "5-17 3-12");
  EXPECT_EQ(count_painted(o.shown()), 42);
}

TEST(Overlay, BorderStyles) {
  const std::string cases[] = {
      std::string(30, '.'),
      "..#####################.......",
      "..##################......#...",  // 18 and 6: the line ends at 22
      "..###...###...###...###.......",
      "..#########......###......#...",
      "..#########...###...###.......",
  };
  for (int style = 0; style < 6; ++style) {
    Overlays o;
    o.line.Visible = true;
    o.line.BorderStyle = style;
    std::string expected = cases[style];
    for (std::size_t x = 23; x < expected.size(); ++x) expected[x] = '.';
    EXPECT_EQ(row(o.shown(), 5), expected) << style;
  }
}

TEST(Overlay, WidthAndColour) {
  Overlays o;
  o.line.Visible = true;
  o.line.BorderWidth = 3;
  o.line.BorderColor = red;
  EXPECT_EQ(extent(o.shown()), "1-23 4-6");
  EXPECT_EQ(pixel(o.shown(), 10, 4), pixel_of(red));
}

TEST(Overlay, FillStyles) {
  const std::string cases[] = {
      "rrrrrrrrrrr", "...........", "...........", "......r....",
      "...r.......", "r.......r..", "......r....", "r..r....r..",
  };
  for (int style = 0; style < 8; ++style) {
    Overlays o;
    o.shape.Visible = true;
    o.shape.FillColor = red;
    o.shape.FillStyle = style;
    EXPECT_EQ(row(o.shown(), 9).substr(6, 11), cases[style]) << style;
    EXPECT_EQ(row(o.shown(), 11).substr(6, 11) == "rrrrrrrrrrr", style == 0 || style == 2 || style == 6) << style;
  }
}

TEST(Overlay, CirclesAreTheLargestThatFit) {
  Overlays o;
  o.shape.Visible = true;
  o.shape.Shape = 3;
  EXPECT_EQ(extent(o.shown()), "6-15 3-12");
  o.shape.Width = 45;
  EXPECT_EQ(extent(o.shown()), "5-7 6-8");
  o.shape.Left = -1e9F;
  o.shape.Top = -1e9F;
  o.shape.Width = 2e9F;
  o.shape.Height = 2e9F;
  o.shape.FillStyle = 0;
  EXPECT_EQ(count_painted(o.shown()), 600);
}

}  // namespace

}  // namespace trelvo
