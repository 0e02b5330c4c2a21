// Lines of more than one pixel: the pixels whose centre lies within half the width of the line. The disc of an even
// width stands half a pixel up and to the left, so that width 2 at x = 10 covers 9 and 10.
#pragma once

#include <span>

#include "platform/raster/interval.h"

namespace trelvo::raster {

struct WideInk {
  explicit WideInk(const Pen& pen) : WideInk(pen.width, pixel_of(pen.color)) {}
  WideInk(std::int32_t width, std::uint32_t color)
      : pixel(color), radius(width / 2.0), shift(width % 2 == 0 ? -0.5 : 0) {}

  std::uint32_t pixel;
  double radius;
  double shift;  // of the pen's centre, in both directions
};

struct Origin {
  std::int64_t x;
  std::int64_t y;
};

// The path of a disc from origin + from to origin + to; the same wherever the origin lies.
void sweep(Bitmap& bitmap, Origin origin, Offset from, Offset to, double radius, std::uint32_t pixel);

void wide_line(Bitmap& bitmap, const WideInk& ink, Point from, Point to);
void wide_polyline(Bitmap& bitmap, const WideInk& ink, std::span<const Point> points);
void wide_closed_polyline(Bitmap& bitmap, const WideInk& ink, std::span<const Point> points);

}  // namespace trelvo::raster
