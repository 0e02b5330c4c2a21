#include "script/printer_script.h"

#include "script/desktop_script.h"

namespace trelvo {

namespace {

// A sheet that nobody will see.
class DroppedSheet : public PrintJob {
 public:
  explicit DroppedSheet(FontService& fonts) : fonts_(fonts) {}
  void segment(const Pen& /*pen*/, double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/) override {}
  void finish() override {}
  Size GetTextExtentPoint32A(const Font& font, const std::string& text) override { return fonts_.extent(font, text); }

 protected:
  void paint_polyline(const Pen& /*pen*/, std::span<const Point> /*points*/) override {}
  void paint_polygon(const Pen& /*pen*/, const Brush& /*brush*/, std::span<const Point> /*points*/) override {}
  void paint_ellipse(const Pen& /*pen*/, const Brush& /*brush*/, Point /*corner1*/, Point /*corner2*/) override {}
  void paint_arc(const Pen& /*pen*/, Point /*corner1*/, Point /*corner2*/, Point /*start*/, Point /*end*/) override {}
  void paint_text(const Font& /*font*/, Color /*color*/, Point /*position*/, const std::string& /*text*/) override {}

 private:
  FontService& fonts_;
};

}  // namespace

Paper PrinterScript::paper() const {
  if (!desktop_.paper) throw RuntimeError(error_printer);
  return *desktop_.paper;
}

std::unique_ptr<PrintJob> PrinterScript::make_job() {
  const Paper sheet = paper();
  auto& files = desktop_.answers.print_files;
  if (files.empty() || !make_pdf_) return std::make_unique<DroppedSheet>(desktop_.fonts());
  const std::string file = files.front();
  files.pop_front();
  return make_pdf_(sheet, dots_per_inch(), file);
}

}  // namespace trelvo
