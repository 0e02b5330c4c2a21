// Bitmaps as small pictures of characters.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/graphics.h"

namespace trelvo {

constexpr Color black = 0;
constexpr Color red = rgb(255, 0, 0);
constexpr Pen thin{0, 1, black};
constexpr Pen no_pen{5, 1, black};
constexpr Brush black_brush{Brush::Kind::solid, 0, black};

inline Bitmap blank(int width, int height) {
  return {width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), 0xFFFFFFFF)};
}

inline std::uint32_t pixel(const Bitmap& bitmap, int x, int y) {
  return bitmap.pixels.at(static_cast<std::size_t>(y * bitmap.width + x));
}
inline bool painted(const Bitmap& bitmap, int x, int y) { return pixel(bitmap, x, y) != 0xFFFFFFFF; }

// '.' for white, '#' for black, 'r' for red, '?' for anything else.
inline std::string row(const Bitmap& bitmap, int y) {
  std::string text;
  for (int x = 0; x < bitmap.width; ++x) {
    switch (pixel(bitmap, x, y)) {
      case 0xFFFFFFFF:
        text += '.';
        break;
      case 0xFF000000:
        text += '#';
        break;
      case 0xFFFF0000:
        text += 'r';
        break;
      default:
        text += '?';
    }
  }
  return text;
}

using Rows = std::vector<std::string>;

inline Rows picture(const Bitmap& bitmap) {
  Rows rows;
  for (int y = 0; y < bitmap.height; ++y) rows.push_back(row(bitmap, y));
  return rows;
}

inline std::string column(const Bitmap& bitmap, int x) {
  std::string text;
  for (int y = 0; y < bitmap.height; ++y) text += row(bitmap, y)[static_cast<std::size_t>(x)];
  return text;
}

// "10-29 10-29": columns and rows that hold painted pixels.
inline std::string extent(const Bitmap& bitmap) {
  int left = bitmap.width, right = -1, top = bitmap.height, bottom = -1;
  for (int y = 0; y < bitmap.height; ++y) {
    for (int x = 0; x < bitmap.width; ++x) {
      if (!painted(bitmap, x, y)) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  if (right < 0) return "nothing";
  return std::to_string(left) + '-' + std::to_string(right) + ' ' + std::to_string(top) + '-' + std::to_string(bottom);
}

inline int count_painted(const Bitmap& bitmap) {
  return static_cast<int>(std::count_if(bitmap.pixels.begin(), bitmap.pixels.end(),
                                        [](std::uint32_t value) { return value != 0xFFFFFFFF; }));
}

inline Bitmap window(const Bitmap& large, int left, int top, int width, int height) {
  Bitmap part = blank(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      part.pixels[static_cast<std::size_t>(y * width + x)] = pixel(large, left + x, top + y);
    }
  }
  return part;
}

}  // namespace trelvo
