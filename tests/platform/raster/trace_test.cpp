#include <gtest/gtest.h>

#include <array>

#include "fonts.h"
#include "picture.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

namespace {

struct Traced {
  BlockFonts fonts;
  RasterSurface surface{fonts};
  std::vector<std::string> lines;

  Traced() {
    surface.resize(600, 600);
    surface.trace = [this](const std::string& line) { lines.push_back(line); };
    surface.hDC().trace = surface.trace;
  }
  std::string last() const { return lines.empty() ? "" : lines.back(); }
};

TEST(Trace, OfTheSurface) {
  Traced t;
  RasterSurface& s = t.surface;
  s.Cls();
  EXPECT_EQ(t.last(), "Cls");
  s.Line(0, 0, 1500, 1500, 255);
  EXPECT_EQ(t.last(), "Line 0,0 1500,1500 color=255 DrawWidth=1 DrawStyle=0");
  s.DrawWidth = 14;
  s.DrawStyle = 5;
  s.Line(0.5, -0.1, 1e20, 1.0 / 3, 0);
  EXPECT_EQ(t.last().substr(0, 14), "Line 0.5,-0.1 ");
  EXPECT_NE(t.last().find(",0.3333333333333333 color=0 DrawWidth=14 DrawStyle=5"), std::string::npos) << t.last();
  s.PSet(0, 0, 0);
  EXPECT_EQ(t.last(), "PSet 0,0 color=0");
  EXPECT_EQ(t.lines.size(), 4U);
}

TEST(Trace, OfTheContext) {
  Traced t;
  DeviceContext& dc = t.surface.hDC();
  dc.Polyline({0, 1, 0}, std::array{Point{10, 10}, Point{20, 20}, Point{30, 10}});
  EXPECT_EQ(t.last(), "dc.Polyline pen=0,1,0 3: 10,10 20,20 30,10");
  const std::array square{Point{10, 10}, Point{10, 40}, Point{40, 40}, Point{40, 10}};
  dc.Polygon({0, 1, 0}, {Brush::Kind::hatch, 4, 255}, square);
  EXPECT_EQ(t.last(), "dc.Polygon pen=0,1,0 brush=hatch 4,255 4: 10,10 10,40 40,40 40,10");
  dc.Polygon({2, 3, 7}, {Brush::Kind::solid, 0, 255}, square);
  EXPECT_EQ(t.last(), "dc.Polygon pen=2,3,7 brush=solid 255 4: 10,10 10,40 40,40 40,10");
  dc.Polygon({2, 3, 7}, {Brush::Kind::pattern, 0, 255}, {});
  EXPECT_EQ(t.last(), "dc.Polygon pen=2,3,7 brush=pattern 0:");
  dc.Ellipse({0, 1, 0}, {}, {10, 10}, {30, 30});
  EXPECT_EQ(t.last(), "dc.Ellipse pen=0,1,0 brush=none 10,10 30,30");
  dc.Arc({0, 1, 0}, {10, 10}, {30, 30}, {30, 20}, {20, 10});
  EXPECT_EQ(t.last(), "dc.Arc pen=0,1,0 10,10 30,30 30,20 20,10");
}

TEST(Trace, OfTexts) {
  Traced t;
  DeviceContext& dc = t.surface.hDC();
  dc.TextOutA({"Arial", -20, 0, 0, false, false, false}, 0, {10, 10}, "testo");
  EXPECT_EQ(t.last(),
            "dc.TextOut height=-20 escapement=0 weight=0 italic=0 underline=0 strikeout=0 face=\"Arial\" color=0 "
            "background=transparent 10,10 \"testo\"");
  dc.background = {true, 255};
  dc.TextOutA({"A", -20, 450, 700, true, true, true}, 9, {-1, 2}, "a\"b\\");
  EXPECT_EQ(t.last(),
            "dc.TextOut height=-20 escapement=450 weight=700 italic=1 underline=1 strikeout=1 face=\"A\" color=9 "
            "background=opaque,255 -1,2 \"a\\\"b\\\\\"");
  dc.background = {};
  t.surface.CurrentX = 22.5;
  t.surface.Print("x");
  EXPECT_EQ(t.last(),
            "dc.TextOut height=-11 escapement=0 weight=0 italic=0 underline=0 strikeout=0 face=\"Arial\" color=0 "
            "background=transparent 2,0 \"x\"");
}

}  // namespace

}  // namespace trelvo
