#include "platform/qt/typeface.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace trelvo {

namespace {

constexpr int default_height = 16;

QFont reference_font(const Font& font) {
  QFont result(QString::fromStdString(font.face));
  result.setPixelSize(Typeface::reference);
  if (font.weight > 0) result.setWeight(static_cast<QFont::Weight>(std::clamp(font.weight, 1, 1000)));
  result.setItalic(font.italic);
  result.setHintingPreference(QFont::PreferNoHinting);
  result.setKerning(false);
  return result;
}

QString one_letter(char32_t code) { return QString::fromUcs4(&code, 1); }

}  // namespace

Typeface::Typeface(const Font& font) : font_(reference_font(font)) {
  const QFontMetricsF metrics(font_);
  ascent_ = metrics.ascent();
  descent_ = metrics.descent();
}

FontCell Typeface::cell(int height) const {
  if (height == 0) height = default_height;
  FontCell cell;
  if (height < 0) {
    cell.em = -static_cast<double>(height);
    cell.ascent = static_cast<int>(std::lround(ascent_ * cell.em / reference));
    cell.descent = static_cast<int>(std::lround(descent_ * cell.em / reference));
  } else {
    cell.em = height * static_cast<double>(reference) / (ascent_ + descent_);
    cell.ascent = static_cast<int>(std::lround(ascent_ * cell.em / reference));
    cell.descent = height - cell.ascent;
  }
  return cell;
}

const Typeface::Letter& Typeface::letter(char32_t code) {
  const auto [place, added] = letters_.try_emplace(code);
  if (added) {
    const QString text = one_letter(code);
    place->second.shape.addText(0, 0, font_, text);
    place->second.advance = QFontMetricsF(font_).horizontalAdvance(text);
  }
  return place->second;
}

double Typeface::advance(const QString& text) {
  double sum = 0;
  for (const char32_t code : text.toStdU32String()) sum += letter(code).advance;
  return sum;
}

QPainterPath Typeface::outline(const QString& text, bool underline, bool strikeout) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  double x = 0;
  for (const char32_t code : text.toStdU32String()) {
    const Letter& one = letter(code);
    path.addPath(one.shape.translated(x, 0));
    x += one.advance;
  }
  const QFontMetricsF metrics(font_);
  const auto add_rule = [&](double below) { path.addRect(0, below, x, metrics.lineWidth()); };
  if (underline) add_rule(metrics.underlinePos());
  if (strikeout) add_rule(-metrics.strikeOutPos());
  return path;
}

}  // namespace trelvo
