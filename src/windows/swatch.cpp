#include "windows/swatch.h"

#include <QPainter>

#include "document/contorno.h"
#include "windows/binding.h"
#include "windows/desktop_qt.h"

namespace trelvo {

namespace {

// By the index of the swatch; the first stands for no line at all.
Qt::PenStyle pen_style(int index) {
  constexpr Qt::PenStyle styles[] = {Qt::NoPen,   Qt::SolidLine,   Qt::DashLine,
                                     Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
  return styles[index];
}

// A rim that is as wide on all sides at every scale of the screen.
void fill_with_rim(QPainter& painter, const QRect& area, int width, const QColor& rim, const QColor& inside) {
  painter.fillRect(area, rim);
  painter.fillRect(area.adjusted(width, width, -width, -width), inside);
}

}  // namespace

StyleSwatch::StyleSwatch(DesktopQt& desktop, PictureBox& box, QWidget* parent) : QAbstractButton(parent), box_(box) {
  bind_control(desktop, this, box, qt(box.ToolTipText));
  setToolTip(qt(box.ToolTipText));
  setFocusPolicy(Qt::StrongFocus);
  follow(this, box.BackColor, [this] { update(); });
  QObject::connect(this, &QAbstractButton::clicked, this, [this, &desktop] {
    desktop.run([&] {
      if (box_.Click) box_.Click();
    });
  });
}

QSize StyleSwatch::sizeHint() const {
  const int em = fontMetrics().height();
  return {em * 5, em * 2};
}

void StyleSwatch::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor back = color_of(box_.BackColor);
  fill_with_rim(painter, rect(), hasFocus() ? 2 : 1, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid),
                back);
  painter.setPen(QPen(readable_on(back), 1, pen_style(box_.index)));
  const int margin = fontMetrics().averageCharWidth();
  painter.drawLine(margin, height() / 2, width() - margin, height() / 2);
}

ColorChip::ColorChip(Label& label, const QString& name, QWidget* parent) : QFrame(parent), label_(label) {
  follow(this, label.Caption, [this, name] {
    setAccessibleName(name + ": " + qt(label_.Caption));
    setToolTip(qt(label_.Caption));
    update();
  });
  follow(this, label.Enabled, [this] { setEnabled(label_.Enabled); });
}

QSize ColorChip::sizeHint() const {
  const int em = fontMetrics().height();
  return {em * 4, em * 3 / 2};
}

void ColorChip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const bool told = label_.Caption.get() != vari;
  QColor inside = palette().color(QPalette::Window);
  if (told && isEnabled()) inside = color_of(static_cast<Color>(round_clamped(numeric_prefix(label_.Caption.get()))));
  fill_with_rim(painter, rect(), 1, palette().color(QPalette::Mid), inside);
  if (!told) painter.drawText(rect(), Qt::AlignCenter, qt(vari));
}

}  // namespace trelvo
