#include "platform/printer.h"

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

constexpr double twips_per_inch = 1440;
constexpr double millimetres_per_inch = 25.4;

float twips(double millimetres) { return static_cast<float>(millimetres / millimetres_per_inch * twips_per_inch); }

}  // namespace

float Printer::Width() const { return twips(paper().sheet_width); }
float Printer::Height() const { return twips(paper().sheet_height); }

float Printer::TwipsPerPixelX() const { return static_cast<float>(twips_per_inch / dots_per_inch()); }

void Printer::set_ScaleMode(int mode) {
  const Paper sheet = paper();
  ScaleMode = mode;
  ScaleWidth = ScaleX(sheet.width, scale_millimetres, mode);
  ScaleHeight = ScaleY(sheet.height, scale_millimetres, mode);
}

bool Printer::start() {
  job_ = make_job();
  if (!job_) return false;
  if (trace) {
    trace("Print \"\"");
    job_->trace = trace;
  }
  return true;
}

void Printer::EndDoc() {
  if (trace) trace("EndDoc");
  const std::unique_ptr<PrintJob> job = std::move(job_);
  if (job) job->finish();
}

void Printer::paint_line(double x1, double y1, double x2, double y2, Color color) {
  job_->segment({DrawStyle, DrawWidth, color}, device_x(x1), device_y(y1), device_x(x2), device_y(y2));
}

void Printer::paint_pset(double x, double y, Color color) {
  job_->segment({0, DrawWidth, color}, device_x(x), device_y(y), device_x(x), device_y(y));
}

}  // namespace trelvo
