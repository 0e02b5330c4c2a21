// Shows a surface with its overlays, one pixel of the surface a pixel of the screen, and tells the mouse.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/overlay.h"
#include "platform/raster/raster_surface.h"

namespace trelvo {

class Canvas : public QWidget {
 public:
  Canvas(RasterSurface& surface, std::vector<OverlayLine*> lines, std::vector<OverlayShape*> shapes,
         QWidget* parent = nullptr);

  // A preview of fixed size: its pixels grow with the screen's scale instead of getting finer.
  void keep_size() { fixed_ = true; }

  // Shows the surface again if it was painted on.
  void refresh();

  // Size in the surface's logical units.
  float logical_width() const;
  float logical_height() const;

  // In the surface's logical units.
  std::function<void(float x, float y)> moved;
  std::function<void(int button, float x, float y)> pressed;
  std::function<void()> left;
  std::function<void()> resized;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  double ratio() const { return fixed_ ? 1 : devicePixelRatioF(); }
  QPointF logical(const QPointF& place) const;

  RasterSurface& surface_;
  std::vector<const OverlayLine*> lines_;
  std::vector<const OverlayShape*> shapes_;
  Bitmap shown_;
  std::uint64_t version_ = 0;
  bool fixed_ = false;
};

}  // namespace trelvo
