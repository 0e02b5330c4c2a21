// A font service whose letters are solid cells, as wide as half their height.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "platform/graphics.h"

namespace trelvo {

struct BlockFonts : FontService {
  Size extent(const Font& font, const std::string& text) override {
    extents.push_back(font);
    const int height = std::abs(font.height);
    return {static_cast<int>(text.size()) * (height / 2), height};
  }
  GlyphMask mask(const Font& font, const std::string& text) override {
    masks.push_back(font);
    if (shape.width > 0) return shape;
    const int height = std::abs(font.height);
    const int width = static_cast<int>(text.size()) * (height / 2);
    return {0, 0, width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(width * height), 255)};
  }

  GlyphMask shape;  // instead of the cells, if it has a width
  std::vector<Font> extents, masks;
};

}  // namespace trelvo
