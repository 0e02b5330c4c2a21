// Letters of the desktop's fonts, as outlines scaled to the asked size: the same shapes at every angle and scale. A
// face that is missing falls back to the nearest one. Wants a QGuiApplication.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "platform/graphics.h"
#include "platform/qt/typeface.h"

namespace trelvo {

class FontServiceQt : public FontService {
 public:
  Size extent(const Font& font, const std::string& text) override;
  // Letters too large for memory are cut to the part about the reference point.
  GlyphMask mask(const Font& font, const std::string& text) override;

 private:
  Typeface& typeface(const Font& font);

  std::unordered_map<std::string, std::unique_ptr<Typeface>> typefaces_;
  // Masks painted lately, so that a repeated text costs a copy.
  std::unordered_map<std::string, GlyphMask> masks_;
  std::size_t masks_size_ = 0;
};

}  // namespace trelvo
