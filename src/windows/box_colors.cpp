#include "windows/box_colors.h"

#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

#include "windows/binding.h"

namespace trelvo {

namespace {

constexpr double least_contrast = 4.5;
constexpr int steps = 8;

double linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [low, high] = std::minmax({luminance(one), luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

QColor mixed(const QColor& from, const QColor& to, double part) {
  const auto between = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
  return {between(from.red(), to.red()), between(from.green(), to.green()), between(from.blue(), to.blue())};
}

QColor back_of(const TextBox& box, FieldColors meaning) {
  const QPalette theme = QApplication::palette();
  const bool dark_theme = readable_on(theme.color(QPalette::Window)) == QColor(Qt::white);
  if (meaning == FieldColors::to_show || !dark_theme) return color_of(box.BackColor);
  return theme.color(QPalette::Active, box.BackColor == rgb(255, 255, 255) ? QPalette::Base : QPalette::Button);
}

void dress(QWidget* widget, const QColor& back, const QColor& text) {
  QPalette palette = widget->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setColor(group, QPalette::Base, back);
    palette.setColor(group, QPalette::Text, text);
  }
  widget->setPalette(palette);
}

void show_colors(QLineEdit* widget, const TextBox& box, FieldColors meaning) {
  const QColor back = back_of(box, meaning);
  dress(widget, back, box.ForeColor == 0 ? readable_on(back) : readable_on(back, color_of(box.ForeColor)));
}

}  // namespace

QColor readable_on(const QColor& back) {
  return contrast(back, Qt::white) > contrast(back, Qt::black) ? Qt::white : Qt::black;
}

QColor readable_on(const QColor& back, const QColor& color) {
  const QColor end = readable_on(back);
  QColor found = color;
  for (int step = 1; step <= steps && contrast(found, back) < least_contrast; ++step) {
    found = mixed(color, end, static_cast<double>(step) / steps);
  }
  return found;
}

void show_back_color(QWidget* widget, Color color) { dress(widget, color_of(color), readable_on(color_of(color))); }

void follow_colors(QLineEdit* widget, TextBox& box, FieldColors meaning) {
  const auto show = [widget, &box, meaning] { show_colors(widget, box, meaning); };
  follow(widget, box.BackColor, show);
  follow(widget, box.ForeColor, show);
}

}  // namespace trelvo
