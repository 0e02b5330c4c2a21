// The pixels of a one-pixel line, counted along its longer side. End points anywhere in 32 bits.
#pragma once

#include <cstdint>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

// Steps from the first to the last pixel.
std::int64_t steps_between(Point from, Point to);

// True if the line lies wholly beyond one edge of the bitmap.
bool misses(const Bitmap& bitmap, Point from, Point to);

class LineSteps {
 public:
  LineSteps(Point from, Point to);

  // The steps, among the first `count`, whose pixels lie in the bitmap.
  Range within(const Bitmap& bitmap, std::int64_t count) const;

  // Goes from pixel to pixel.
  struct Walker {
    std::int64_t x, y;
    void step() {
      x += major_x;
      y += major_y;
      error += rise;
      if (error >= run) {
        error -= run;
        x += minor_x;
        y += minor_y;
      }
    }

    std::int64_t major_x, major_y, minor_x, minor_y;
    std::int64_t error, rise, run;  // in halves of a step
  };
  Walker walk_from(std::int64_t step) const;

 private:
  // Pixels moved across the longer side after so many steps along it.
  std::int64_t sideways(std::int64_t step) const;
  // The first step in the range that has moved so far; one behind the range if none has.
  std::int64_t first_reaching(std::int64_t moved, const Range& range) const;

  std::int64_t start_along_, start_across_;
  std::uint64_t run_, rise_;
  std::int64_t along_sign_, across_sign_;
  bool flat_;  // longer across than down
};

}  // namespace trelvo::raster
