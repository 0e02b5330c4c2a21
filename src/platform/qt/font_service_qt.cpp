#include "platform/qt/font_service_qt.h"

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <limits>

namespace trelvo {

namespace {

// The painter takes no coordinates beyond this, and nobody sees more than this of one letter.
constexpr double farthest = 16000;
constexpr double largest_area = 16.0 * 1024 * 1024;
constexpr double near_side = 2048;
constexpr std::size_t kept_masks_size = 16U << 20;
constexpr std::size_t largest_kept_mask = 256U << 10;

std::int32_t held(double pixels) {
  constexpr double limit = std::numeric_limits<std::int32_t>::max() / 4.0;
  return static_cast<std::int32_t>(std::lround(std::clamp(pixels, 0.0, limit)));
}

std::string style_key(const Font& font) {
  return font.face + '\n' + std::to_string(font.weight) + (font.italic ? "i" : "");
}

std::string mask_key(const Font& font, const std::string& text) {
  return style_key(font) + (font.underline ? "u" : "") + (font.strikeout ? "s" : "") + '\n' +
         std::to_string(font.height) + ' ' + std::to_string(font.escapement) + '\n' + text;
}

QRectF square(double half) { return {-half, -half, 2 * half, 2 * half}; }

// Whole pixels that hold the outline, no more of them than can be painted.
QRect mask_area(const QRectF& bounds) {
  QRectF area = bounds.adjusted(-1, -1, 1, 1).intersected(square(farthest));
  if (area.width() * area.height() > largest_area) area = area.intersected(square(near_side));
  return area.isEmpty() ? QRect() : area.toAlignedRect();
}

GlyphMask paint_mask(const QPainterPath& path) {
  const QRect area = mask_area(path.boundingRect());
  GlyphMask mask;
  if (path.isEmpty() || area.isEmpty()) return mask;
  // The painter is far slower on 8-bit images than on these, of which only the alpha counts.
  QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return mask;
  image.fill(0);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-area.topLeft());
  painter.fillPath(path, Qt::black);
  painter.end();

  mask.left = area.left();
  mask.top = area.top();
  mask.width = area.width();
  mask.height = area.height();
  const auto width = static_cast<std::size_t>(mask.width);
  mask.coverage.resize(width * static_cast<std::size_t>(mask.height));
  for (int y = 0; y < mask.height; ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::transform(row, row + width, mask.coverage.begin() + static_cast<std::ptrdiff_t>(width) * y,
                   [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel)); });
  }
  return mask;
}

}  // namespace

Typeface& FontServiceQt::typeface(const Font& font) {
  auto& place = typefaces_[style_key(font)];
  if (!place) place = std::make_unique<Typeface>(font);
  return *place;
}

Size FontServiceQt::extent(const Font& font, const std::string& text) {
  Typeface& face = typeface(font);
  const FontCell cell = face.cell(font.height);
  const double width = face.advance(QString::fromStdString(text)) * cell.em / Typeface::reference;
  return {held(width), held(static_cast<double>(cell.ascent) + cell.descent)};
}

GlyphMask FontServiceQt::mask(const Font& font, const std::string& text) {
  std::string key = mask_key(font, text);
  if (const auto known = masks_.find(key); known != masks_.end()) return known->second;

  Typeface& face = typeface(font);
  const FontCell cell = face.cell(font.height);
  QTransform place;
  place.rotate(-font.escapement / 10.0);
  place.translate(0, cell.ascent);
  place.scale(cell.em / Typeface::reference, cell.em / Typeface::reference);
  GlyphMask mask = paint_mask(place.map(face.outline(QString::fromStdString(text), font.underline, font.strikeout)));

  if (mask.coverage.size() <= largest_kept_mask) {
    if (masks_size_ > kept_masks_size) {
      masks_.clear();
      masks_size_ = 0;
    }
    masks_size_ += mask.coverage.size() + key.size() + sizeof(GlyphMask);
    masks_.emplace(std::move(key), mask);
  }
  return mask;
}

}  // namespace trelvo
