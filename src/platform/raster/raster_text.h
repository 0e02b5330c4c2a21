// Texts: the shapes of the font service, blended over the bitmap.
#pragma once

#include <string>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

struct TextStyle {
  const Font& font;
  Color color;
  const Background& background;
};

// The position is the top left corner of the unturned cell, about which it turns.
void draw_text(Bitmap& bitmap, FontService& fonts, const TextStyle& style, Point position, const std::string& text);

}  // namespace trelvo::raster
