#include "platform/qt/print_job_qt.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainterPath>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "platform/qt/near_part.h"
#include "platform/runtime_error.h"
#include "platform/whole_file.h"

namespace trelvo {

namespace {

constexpr double millimetres_per_inch = 25.4;
constexpr double screen_dots = 96;
constexpr int hatch_pitch = 8;  // screen pixels
constexpr double degrees = 180 / 3.14159265358979323846;
constexpr int most_hatch_lines = 20000;
constexpr int tallest_letters = 100000;

QPointF point_of(Point p) { return QPointF(p.x, p.y); }

QColor color_of(Color color) { return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF}; }

// On and off, in screen pixels.
QList<qreal> dashes(int style) {
  switch (style) {
    case 1:
      return {18, 6};
    case 2:
      return {3, 3};
    case 3:
      return {9, 6, 3, 6};
    case 4:
      return {9, 3, 3, 3, 3, 3};
    default:
      return {};
  }
}

// Wide lines are solid. Dashes keep on paper the length that they have on the screen.
QPen pen_of(const Pen& pen, double dots) {
  constexpr int no_line = 5;
  if (pen.style == no_line) return QPen(Qt::NoPen);
  const double width = std::max(pen.width, 1);
  QPen result(color_of(pen.color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  QList<qreal> pattern = width > 1 ? QList<qreal>() : dashes(pen.style);
  if (pattern.isEmpty()) return result;
  for (qreal& length : pattern) length *= dots / screen_dots;
  result.setDashPattern(pattern);
  result.setCapStyle(Qt::FlatCap);
  return result;
}

QFont font_of(const Font& font) {
  QFont result(QString::fromStdString(font.face));
  if (font.weight > 0) result.setWeight(static_cast<QFont::Weight>(std::clamp(font.weight, 1, 1000)));
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  result.setStrikeOut(font.strikeout);
  result.setKerning(false);
  const int height = std::clamp(font.height, -tallest_letters, tallest_letters);
  result.setPixelSize(std::max(1, std::abs(height)));
  if (height <= 0) return result;
  // A positive height is that of the whole cell.
  const double cell = QFontMetricsF(result).height();
  if (cell > 0) result.setPixelSize(std::max(1, static_cast<int>(std::lround(height / cell * height))));
  return result;
}

QPolygonF polygon_of(std::span<const Point> points) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const Point& p : points) polygon.append(point_of(p));
  return polygon;
}

QRectF box_of(Point corner1, Point corner2) { return QRectF(point_of(corner1), point_of(corner2)).normalized(); }

double angle_from(QPointF centre, Point p) { return std::atan2(centre.y() - p.y, p.x - centre.x()) * degrees; }

}  // namespace

PrintJobQt::PrintJobQt(std::unique_ptr<QPagedPaintDevice> device, double dots, double left, double top)
    : device_(std::move(device)), dots_(dots) {
  if (!painter_.begin(device_.get())) throw RuntimeError(error_printer);
  painter_.translate(left, top);
}

PrintJobQt::~PrintJobQt() { drop(); }

void PrintJobQt::drop() {
  if (painter_.isActive()) painter_.end();
  device_.reset();
}

void PrintJobQt::finish() {
  if (!painter_.end()) throw RuntimeError(error_printer);
}

void PrintJobQt::segment(const Pen& pen, double x1, double y1, double x2, double y2) {
  painter_.setPen(pen_of(pen, dots_));
  if (const auto part = near_part(QLineF(x1, y1, x2, y2))) painter_.drawLine(*part);
}

void PrintJobQt::paint_polyline(const Pen& pen, std::span<const Point> points) { stroke(polygon_of(points), pen); }

void PrintJobQt::stroke(const QPolygonF& points, const Pen& pen) {
  painter_.setPen(pen_of(pen, dots_));
  if (is_near(points)) {
    painter_.drawPolyline(points);
    return;
  }
  for (qsizetype i = 1; i < points.size(); ++i) {
    if (const auto part = near_part(QLineF(points[i - 1], points[i]))) painter_.drawLine(*part);
  }
}

void PrintJobQt::paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) {
  if (points.empty()) return;
  QPolygonF outline = polygon_of(points);
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  path.addPolygon(near_area(outline));
  path.closeSubpath();
  fill(path, brush);
  if (is_near(outline)) {
    painter_.strokePath(path, pen_of(pen, dots_));
  } else {
    outline.append(outline.first());
    stroke(outline, pen);
  }
}

void PrintJobQt::paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) {
  QPainterPath path;
  path.addEllipse(box_of(corner1, corner2));
  fill(path, brush);
  painter_.strokePath(path, pen_of(pen, dots_));
}

void PrintJobQt::paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) {
  const QRectF box = box_of(corner1, corner2);
  const double from = angle_from(box.center(), start);
  double span = angle_from(box.center(), end) - from;
  if (span <= 0) span += 360;
  QPainterPath path;
  path.arcMoveTo(box, from);
  path.arcTo(box, from, span);
  painter_.strokePath(path, pen_of(pen, dots_));
}

void PrintJobQt::fill(const QPainterPath& shape, const Brush& brush) {
  if (brush.kind == Brush::Kind::solid) painter_.fillPath(shape, color_of(brush.color));
  if (brush.kind == Brush::Kind::hatch) hatch(shape, brush);
}

// Lines at the pitch that the screen has, fixed to the sheet as the screen's are to the surface.
void PrintJobQt::hatch(const QPainterPath& shape, const Brush& brush) {
  const double pitch = hatch_pitch * dots_ / screen_dots;
  const QRectF box = shape.boundingRect().intersected(QRectF(-1e5, -1e5, 2e5, 2e5));
  if (box.isEmpty()) return;
  painter_.save();
  painter_.setClipPath(shape, Qt::IntersectClip);
  painter_.setPen(QPen(color_of(brush.color), std::max(1.0, dots_ / screen_dots / 2), Qt::SolidLine, Qt::FlatCap));
  const double side = box.height();
  const auto lines = [&](double low, double high, auto&& draw) {
    const double first = std::ceil(low / pitch) * pitch;
    const int count = std::min(static_cast<int>((high - first) / pitch) + 1, most_hatch_lines);
    for (int i = 0; i < count; ++i) draw(first + i * pitch);
  };
  const auto across = [&](double y) { painter_.drawLine(QPointF(box.left(), y), QPointF(box.right(), y)); };
  const auto down = [&](double x) { painter_.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom())); };
  // Falling lines keep x - y, rising ones x + y.
  const auto falling = [&](double d) {
    painter_.drawLine(QPointF(box.top() + d, box.top()), QPointF(box.bottom() + d, box.bottom()));
  };
  const auto rising = [&](double s) {
    painter_.drawLine(QPointF(s - box.top(), box.top()), QPointF(s - box.bottom(), box.bottom()));
  };
  const int kind = brush.hatch;
  if (kind == 0 || kind == 4) lines(box.top(), box.bottom(), across);
  if (kind == 1 || kind == 4) lines(box.left(), box.right(), down);
  if (kind == 2 || kind == 5) lines(box.left() - box.top() - side, box.right() - box.top(), falling);
  if (kind == 3 || kind == 5) lines(box.left() + box.top(), box.right() + box.top() + side, rising);
  painter_.restore();
}

void PrintJobQt::paint_text(const Font& font, Color color, Point position, const std::string& text) {
  if (text.empty()) return;
  const QFont letters = font_of(font);
  const QString line = QString::fromStdString(text);
  // Metrics of the device, in its dots.
  const QFontMetricsF metrics(letters, device_.get());
  painter_.save();
  painter_.translate(point_of(position));
  painter_.rotate(-font.escapement / 10.0);
  if (background.opaque) {
    painter_.fillRect(QRectF(0, 0, metrics.horizontalAdvance(line), metrics.height()), color_of(background.color));
  }
  painter_.setFont(letters);
  painter_.setPen(color_of(color));
  painter_.drawText(QPointF(0, metrics.ascent()), line);
  painter_.restore();
}

Size PrintJobQt::GetTextExtentPoint32A(const Font& font, const std::string& text) {
  const QFontMetricsF metrics(font_of(font), device_.get());
  return {static_cast<int>(std::lround(metrics.horizontalAdvance(QString::fromStdString(text)))),
          static_cast<int>(std::lround(metrics.height()))};
}

namespace {

// The file takes its name only when the sheet is finished.
// The sheet is made in memory: the writer would not tell that a full disk took a part of it.
class PdfJob : public PrintJobQt {
 public:
  PdfJob(std::string file, std::unique_ptr<QBuffer> sheet, std::unique_ptr<QPdfWriter> writer, double dots, double left,
         double top)
      : PrintJobQt(std::move(writer), dots, left, top), file_(std::move(file)), sheet_(std::move(sheet)) {}
  ~PdfJob() override { drop(); }
  void finish() override {
    PrintJobQt::finish();
    replace_whole_file(file_, {sheet_->data().constData(), static_cast<std::size_t>(sheet_->size())});
  }

 private:
  std::string file_;
  std::unique_ptr<QBuffer> sheet_;
};

// What can be known before the sheet is drawn.
void require_place(const std::string& file) {
  if (file.empty()) throw RuntimeError(error_file_name);
  const QFileInfo place(QString::fromStdString(file));
  const QFileInfo folder(place.absolutePath());
  if (!folder.isDir()) throw RuntimeError(error_path_not_found);
  if (place.isDir()) throw RuntimeError(error_path_access);
  if (place.exists() ? !place.isWritable() : !folder.isWritable()) throw RuntimeError(error_permission);
}

}  // namespace

std::unique_ptr<PrintJob> pdf_job(const Paper& paper, double dots, const std::string& file, const std::string& title) {
  require_place(file);
  auto sheet = std::make_unique<QBuffer>();
  sheet->open(QIODevice::WriteOnly);
  auto writer = std::make_unique<QPdfWriter>(sheet.get());
  writer->setResolution(static_cast<int>(dots));
  writer->setTitle(QString::fromStdString(title));
  writer->setCreator("Trelvo");
  writer->setPageLayout(QPageLayout(
      QPageSize(QSizeF(paper.sheet_width, paper.sheet_height), QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
      QPageLayout::Portrait, QMarginsF()));
  const double left = (paper.sheet_width - paper.width) / 2 / millimetres_per_inch * dots;
  const double top = (paper.sheet_height - paper.height) / 2 / millimetres_per_inch * dots;
  return std::make_unique<PdfJob>(file, std::move(sheet), std::move(writer), dots, left, top);
}

}  // namespace trelvo
