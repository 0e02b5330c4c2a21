#include "script/surface_properties.h"

#include <algorithm>
#include <array>

#include "script/shown.h"

namespace trelvo {

namespace {

struct Row {
  std::string_view name;
  std::string (*shown)(const RasterSurface&);
};

constexpr std::array rows{
    Row{"ScaleLeft", [](const RasterSurface& s) { return shown(s.ScaleLeft); }},
    Row{"ScaleTop", [](const RasterSurface& s) { return shown(s.ScaleTop); }},
    Row{"ScaleWidth", [](const RasterSurface& s) { return shown(s.ScaleWidth); }},
    Row{"ScaleHeight", [](const RasterSurface& s) { return shown(s.ScaleHeight); }},
    Row{"ScaleMode", [](const RasterSurface& s) { return shown(s.ScaleMode); }},
    Row{"DrawWidth", [](const RasterSurface& s) { return shown(s.DrawWidth); }},
    Row{"DrawStyle", [](const RasterSurface& s) { return shown(s.DrawStyle); }},
    Row{"ForeColor", [](const RasterSurface& s) { return shown(s.ForeColor); }},
    Row{"BackColor", [](const RasterSurface& s) { return shown(s.BackColor); }},
    Row{"CurrentX", [](const RasterSurface& s) { return shown(s.CurrentX); }},
    Row{"CurrentY", [](const RasterSurface& s) { return shown(s.CurrentY); }},
    Row{"FontName", [](const RasterSurface& s) { return shown(s.font.name); }},
    Row{"FontSize", [](const RasterSurface& s) { return shown(s.font.size); }},
    Row{"FontBold", [](const RasterSurface& s) { return shown(s.font.bold); }},
    Row{"FontItalic", [](const RasterSurface& s) { return shown(s.font.italic); }},
    Row{"FontUnderline", [](const RasterSurface& s) { return shown(s.font.underline); }},
    Row{"FontStrikethru", [](const RasterSurface& s) { return shown(s.font.strikethru); }},
    Row{"AutoRedraw", [](const RasterSurface& s) { return shown(s.AutoRedraw()); }},
};

}  // namespace

std::optional<std::string> shown_surface_property(const RasterSurface& surface, std::string_view name) {
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return r.name == name; });
  if (row == rows.end()) return std::nullopt;
  return row->shown(surface);
}

}  // namespace trelvo
