// One face of a font in one style: outlines and measures of its letters at a reference size.
#pragma once

#include <QFont>
#include <QPainterPath>
#include <unordered_map>

#include "platform/graphics.h"

namespace trelvo {

// What a font's height comes to, in pixels.
struct FontCell {
  double em = 0;
  int ascent = 0;
  int descent = 0;
};

class Typeface {
 public:
  explicit Typeface(const Font& font);

  // Pixels of `em` for the letters' own height; everything else is given in these units.
  static constexpr int reference = 2048;

  FontCell cell(int height) const;
  double advance(const QString& text);
  // From the left end of the base line.
  QPainterPath outline(const QString& text, bool underline, bool strikeout);

 private:
  struct Letter {
    QPainterPath shape;
    double advance = 0;
  };
  const Letter& letter(char32_t code);

  QFont font_;
  double ascent_;
  double descent_;
  std::unordered_map<char32_t, Letter> letters_;
};

}  // namespace trelvo
