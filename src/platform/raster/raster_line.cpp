#include "platform/raster/raster_line.h"

#include <cstdlib>

#include "platform/raster/line_steps.h"

namespace trelvo::raster {

namespace {

// Up to this many steps the slope's 32 binary digits decide each pixel rightly.
constexpr std::int32_t longest_inner_line = 46000;

bool inside(const Bitmap& bitmap, Point point) {
  return point.x >= 0 && point.y >= 0 && point.x < bitmap.width && point.y < bitmap.height;
}

// Rounded down, with 32 binary digits.
std::int64_t slope(std::int32_t rise, std::int32_t run) {
  const double exact = rise * 4294967296.0 / run;
  const auto cut = static_cast<std::int64_t>(exact);
  return cut - (exact < static_cast<double>(cut) ? 1 : 0);
}

void step_inner(std::uint32_t* start, std::int32_t count, std::int64_t major, std::int64_t minor, std::int64_t slope,
                std::uint32_t pixel) {
  std::int64_t sideways = 0x7FFFFFFF;  // a little less than half a pixel: halves fall to the smaller coordinate
  for (std::int32_t i = 0; i < count; ++i) {
    start[(sideways >> 32) * minor] = pixel;
    start += major;
    sideways += slope;
  }
}

// `count` pixels of a line with at least that many, less one, steps. Without a branch on the direction: those of
// successive lines are unlike, and a wrong guess costs as much as the line.
void inner_pixels(Bitmap& bitmap, Point from, Point to, std::int32_t count, std::uint32_t pixel) {
  const std::int32_t across = to.x - from.x;
  const std::int32_t down = to.y - from.y;
  const std::int32_t columns_run = std::abs(across);
  const std::int32_t rows_run = std::abs(down);
  const bool flat = columns_run >= rows_run;
  const std::int64_t stride = bitmap.width;
  const std::int64_t x_step = across < 0 ? -1 : 1;
  const std::int64_t y_step = down < 0 ? -stride : stride;
  const std::int32_t run = std::max({columns_run, rows_run, 1});
  step_inner(row_of(bitmap, from.y) + from.x, count, flat ? x_step : y_step, flat ? stride : 1,
             slope(flat ? down : across, run), pixel);
}

void put_steps(Bitmap& bitmap, const DashInk& ink, const LineSteps& steps, const Range& visible, int phase) {
  LineSteps::Walker walker = steps.walk_from(visible.first);
  int dash = static_cast<int>((phase + visible.first) % DashInk::period);
  for (std::int64_t i = visible.first; i <= visible.last; ++i) {
    ink.put(row_of(bitmap, walker.y)[walker.x], dash);
    if (++dash == DashInk::period) dash = 0;
    walker.step();
  }
}

// The first `count` pixels on the way; `phase` is the place in the dash pattern that the first one has.
void segment(Bitmap& bitmap, const DashInk& ink, Point from, Point to, std::int64_t count, int phase) {
  if (count <= 0) return;
  if (ink.solid() && count <= longest_inner_line && inside(bitmap, from) && inside(bitmap, to)) {
    inner_pixels(bitmap, from, to, static_cast<std::int32_t>(count), ink.color());
    return;
  }
  if (misses(bitmap, from, to)) return;
  const LineSteps steps(from, to);
  const Range visible = steps.within(bitmap, count);
  if (!visible.empty()) put_steps(bitmap, ink, steps, visible, phase);
}

// Gives the phase behind the segment.
int open_segment(Bitmap& bitmap, const DashInk& ink, Point from, Point to, int phase) {
  const std::int64_t count = steps_between(from, to);
  segment(bitmap, ink, from, to, count, phase);
  return static_cast<int>((phase + count) % DashInk::period);
}

int open_segments(Bitmap& bitmap, const DashInk& ink, std::span<const Point> points) {
  int phase = 0;
  for (std::size_t i = 1; i < points.size(); ++i) phase = open_segment(bitmap, ink, points[i - 1], points[i], phase);
  return phase;
}

}  // namespace

void inner_line(Bitmap& bitmap, Point from, Point to, std::uint32_t pixel) {
  const std::int32_t count = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)) + 1;
  if (count <= longest_inner_line) {
    inner_pixels(bitmap, from, to, count, pixel);
  } else {
    line(bitmap, DashInk(pixel), from, to);
  }
}

void line(Bitmap& bitmap, const DashInk& ink, Point from, Point to) {
  segment(bitmap, ink, from, to, steps_between(from, to) + 1, 0);
}

void polyline(Bitmap& bitmap, const DashInk& ink, std::span<const Point> points) { open_segments(bitmap, ink, points); }

void closed_polyline(Bitmap& bitmap, const DashInk& ink, std::span<const Point> points) {
  if (points.size() < 2) return;
  const int phase = open_segments(bitmap, ink, points);
  open_segment(bitmap, ink, points.back(), points.front(), phase);
}

}  // namespace trelvo::raster
