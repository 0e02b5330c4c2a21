#include "platform/raster/raster_surface.h"

#include <cmath>

#include "platform/numbers.h"
#include "platform/raster/far_line.h"
#include "platform/raster/figures.h"
#include "platform/raster/raster_context.h"
#include "platform/raster/raster_line.h"

namespace trelvo {

namespace {

std::vector<std::uint32_t> blank(int width, int height, std::uint32_t pixel) {
  return std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel);
}

Bitmap resized(const Bitmap& old, int width, int height, std::uint32_t filling) {
  Bitmap bitmap{width, height, blank(width, height, filling)};
  const int common_width = std::min(width, old.width);
  for (int y = 0; y < std::min(height, old.height); ++y) {
    const auto row = old.pixels.begin() + static_cast<std::ptrdiff_t>(y) * old.width;
    std::copy(row, row + common_width, raster::row_of(bitmap, y));
  }
  return bitmap;
}

int pixels_of(float twips) { return std::max(0, round_clamped(static_cast<double>(twips) / 15)); }

// Rounds to a pixel of the bitmap, so that both bounds are safe in any case.
bool rounds_inside(double value, int size) { return value >= -0.5 && value < size - 0.5; }

}  // namespace

RasterSurface::RasterSurface(FontService& fonts) : fonts_(fonts), context_(std::make_unique<RasterContext>(*this)) {}

RasterSurface::~RasterSurface() = default;

void RasterSurface::resize(float width, float height) {
  ScaleWidth = ScaleX(width, scale_twips, ScaleMode);
  ScaleHeight = ScaleY(height, scale_twips, ScaleMode);
  const int columns = pixels_of(width);
  const int rows = pixels_of(height);
  if (columns == picture_.width && rows == picture_.height) return;
  picture_ = resized(picture_, columns, rows, pixel_of(BackColor));
  if (has_transient_) transient_ = resized(transient_, columns, rows, pixel_of(BackColor));
  ++version_;
}

void RasterSurface::set_AutoRedraw(bool kept) {
  kept_ = kept;
  if (!kept || !has_transient_) return;
  has_transient_ = false;
  ++version_;
}

const Bitmap& RasterSurface::Image() const { return picture_; }
const Bitmap& RasterSurface::screen() const { return has_transient_ ? transient_ : picture_; }
bool RasterSurface::has_transient() const { return has_transient_; }
DeviceContext& RasterSurface::hDC() { return *context_; }

Bitmap& RasterSurface::target() {
  ++version_;
  if (kept_) return picture_;
  if (!has_transient_) {
    transient_ = picture_;
    has_transient_ = true;
  }
  return transient_;
}

inline double RasterSurface::scale() {
  if (ScaleMode != scaled_mode_) {
    scaled_mode_ = ScaleMode;
    scale_ = pixels_per_unit();
  }
  return scale_;
}

void RasterSurface::paint_cls() {
  has_transient_ = false;
  ++version_;
  if (kept_) std::fill(picture_.pixels.begin(), picture_.pixels.end(), pixel_of(BackColor));
}

void RasterSurface::paint_line(double x1, double y1, double x2, double y2, Color color) {
  const double factor = scale();
  const double left = ScaleLeft;
  const double top = ScaleTop;
  const raster::FarLine line{(x1 - left) * factor, (y1 - top) * factor, (x2 - left) * factor, (y2 - top) * factor};
  Bitmap& bitmap = target();
  if (DrawWidth <= 1 && DrawStyle == 0 && rounds_inside(line.x1, bitmap.width) &&
      rounds_inside(line.x2, bitmap.width) && rounds_inside(line.y1, bitmap.height) &&
      rounds_inside(line.y2, bitmap.height)) {
    raster::inner_line(bitmap, raster::near_point(line.x1, line.y1), raster::near_point(line.x2, line.y2),
                       pixel_of(color));
  } else if (const auto reachable = raster::reachable_part(line)) {
    raster::draw_line(bitmap, {DrawStyle, DrawWidth, color}, context_->background, reachable->from, reachable->to);
  }
}

void RasterSurface::paint_pset(double x, double y, Color color) {
  const double device_x_of_point = device_x(x);
  const double device_y_of_point = device_y(y);
  const raster::FarLine spot{device_x_of_point, device_y_of_point, device_x_of_point, device_y_of_point};
  const auto reachable = raster::reachable_part(spot);
  if (!reachable) return;
  raster::draw_line(target(), {0, DrawWidth, color}, {}, reachable->from, reachable->to);
}

}  // namespace trelvo
