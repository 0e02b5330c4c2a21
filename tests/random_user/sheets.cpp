#include "random_user/sheets.h"

#include <filesystem>
#include <functional>

#include "platform/runtime_error.h"
#include "platform/whole_file.h"

namespace trelvo {

class Sheets::Sheet : public PrintJob {
 public:
  Sheet(Sheets& sheets, std::string file) : sheets_(sheets), file_(std::move(file)) { ++sheets_.on_; }
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;
  ~Sheet() override { --sheets_.on_; }

  void segment(const Pen& pen, double x1, double y1, double x2, double y2) override {
    figure("segment", pen);
    for (const double part : {x1, y1, x2, y2}) shown_ += ' ' + std::to_string(part);
  }
  void finish() override {
    replace_whole_file(file_, shown_);
    sheets_.finished_.push_back(std::hash<std::string>{}(shown_));
  }
  Size GetTextExtentPoint32A(const Font& font, const std::string& text) override {
    return sheets_.fonts_.extent(font, text);
  }

 protected:
  void paint_polyline(const Pen& pen, std::span<const Point> points) override {
    figure("polyline", pen);
    for (const Point p : points) add(p);
  }
  void paint_polygon(const Pen& pen, const Brush& brush, std::span<const Point> points) override {
    figure("polygon", pen, brush);
    for (const Point p : points) add(p);
  }
  void paint_ellipse(const Pen& pen, const Brush& brush, Point corner1, Point corner2) override {
    figure("ellipse", pen, brush);
    add(corner1), add(corner2);
  }
  void paint_arc(const Pen& pen, Point corner1, Point corner2, Point start, Point end) override {
    figure("arc", pen);
    add(corner1), add(corner2), add(start), add(end);
  }
  void paint_text(const Font& font, Color color, Point position, const std::string& text) override {
    figure("text", {0, font.height, color});
    add(position);
    shown_ += ' ' + text;
  }

 private:
  void figure(const char* name, const Pen& pen, const Brush& brush = {}) {
    shown_ += std::string("\n") + name;
    for (const auto part : {pen.style, pen.width, pen.color, static_cast<int>(brush.kind), brush.hatch, brush.color}) {
      shown_ += ' ' + std::to_string(part);
    }
  }
  void add(Point p) { shown_ += ' ' + std::to_string(p.x) + ',' + std::to_string(p.y); }

  Sheets& sheets_;
  std::string file_;
  std::string shown_;
};

PdfMaker Sheets::maker() {
  return [this](const Paper& /*paper*/, double /*dots*/, const std::string& file) -> std::unique_ptr<PrintJob> {
    if (file.empty()) throw RuntimeError(error_file_name);
    const std::filesystem::path folder = std::filesystem::absolute(file).parent_path();
    if (!std::filesystem::is_directory(folder)) throw RuntimeError(error_path_not_found);
    if (std::filesystem::is_directory(file)) throw RuntimeError(error_path_access);
    return std::make_unique<Sheet>(*this, file);
  };
}

}  // namespace trelvo
