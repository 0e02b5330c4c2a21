// A printed sheet on Qt: every figure reaches the paper or the PDF file as a figure, and text as text.
#pragma once

#include <QPainter>
#include <memory>
#include <string>

#include "platform/printer.h"

class QPagedPaintDevice;

namespace trelvo {

class PrintJobQt : public PrintJob {
 public:
  // `left` and `top` are the dots from the device's own origin to the printable area. Error 482 if the device refuses.
  PrintJobQt(std::unique_ptr<QPagedPaintDevice> device, double dots, double left, double top);
  ~PrintJobQt() override;

  void segment(const Pen& pen, double x1, double y1, double x2, double y2) override;
  void finish() override;
  Size GetTextExtentPoint32A(const Font& font, const std::string& text) override;

 protected:
  // Ends the painting and lets the device go.
  void drop();

  void paint_polyline(const Pen& pen, std::span<const Point> points) override;
  void paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) override;
  void paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) override;
  void paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) override;
  void paint_text(const Font& font, Color color, Point position, const std::string& text) override;

 private:
  void stroke(const QPolygonF& points, const Pen& pen);
  void fill(const QPainterPath& shape, const Brush& brush);
  void hatch(const QPainterPath& shape, const Brush& brush);

  std::unique_ptr<QPagedPaintDevice> device_;
  QPainter painter_;
  double dots_;
};

// A sheet that goes to a PDF file. Errors 52, 70, 75, 76 for a name that cannot be written; a sheet that is not
// finished leaves no file.
std::unique_ptr<PrintJob> pdf_job(const Paper& paper, double dots, const std::string& file, const std::string& title);

}  // namespace trelvo
