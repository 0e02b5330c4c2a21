#include "windows/canvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "platform/raster/overlay_painter.h"
#include "windows/binding.h"

namespace trelvo {

namespace {

constexpr double twips_per_pixel = 15;
constexpr int left_button = 1;
constexpr int other_button = 2;

void follow_overlay(QWidget* canvas, Control& overlay) {
  for (PropertyBase* property : overlay.properties()) follow(canvas, *property, [canvas] { canvas->update(); });
}

float in_twips(int length, double ratio) {
  return static_cast<float>(std::max(1.0, std::round(length * ratio)) * twips_per_pixel);
}

}  // namespace

Canvas::Canvas(RasterSurface& surface, std::vector<OverlayLine*> lines, std::vector<OverlayShape*> shapes,
               QWidget* parent)
    : QWidget(parent), surface_(surface), lines_(lines.begin(), lines.end()), shapes_(shapes.begin(), shapes.end()) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  for (OverlayLine* line : lines) follow_overlay(this, *line);
  for (OverlayShape* shape : shapes) follow_overlay(this, *shape);
}

void Canvas::refresh() {
  if (version_ != surface_.version()) update();
}

float Canvas::logical_width() const { return in_twips(width(), ratio()); }
float Canvas::logical_height() const { return in_twips(height(), ratio()); }

void Canvas::paintEvent(QPaintEvent* /*event*/) {
  version_ = surface_.version();
  shown_ = surface_.screen();
  paint_overlays(shown_, surface_, lines_, shapes_);
  QPainter painter(this);
  if (shown_.pixels.empty()) return;
  QImage image(reinterpret_cast<const uchar*>(shown_.pixels.data()), shown_.width, shown_.height, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio());
  painter.fillRect(rect(), color_of(surface_.BackColor));
  painter.drawImage(0, 0, image);
}

QPointF Canvas::logical(const QPointF& place) const {
  const QPointF pixel = place * ratio();
  return {surface_.ScaleLeft + std::floor(pixel.x()) * twips_per_pixel,
          surface_.ScaleTop + std::floor(pixel.y()) * twips_per_pixel};
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = logical(event->position());
  if (moved) moved(static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  const QPointF at = logical(event->position());
  const int button = event->button() == Qt::LeftButton ? left_button : other_button;
  if (pressed) pressed(button, static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void Canvas::leaveEvent(QEvent* /*event*/) {
  if (left) left();
}

void Canvas::resizeEvent(QResizeEvent* /*event*/) {
  if (resized) resized();
}

}  // namespace trelvo
