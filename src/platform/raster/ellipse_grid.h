// The pixels of an ellipse in a box, the right and bottom sides of the box left out: those of its inside, and those of
// its outline, counted counter-clockwise from the rightmost pixel of the upper half.
// Distances from the centre are in half pixels, so that they are whole numbers in boxes of odd and even sides.
#pragma once

#include <cstdint>

#include "platform/raster/pixels.h"

namespace trelvo::raster {

class EllipseGrid {
 public:
  // Two opposite corners of the box, anywhere in 32 bits.
  EllipseGrid(Point corner1, Point corner2);

  // A box without a pixel.
  bool empty() const { return width_ <= 0 || height_ <= 0; }

  Range row_range() const { return {(centre_y_ - (height_ - 1)) / 2, (centre_y_ + (height_ - 1)) / 2}; }
  Range inside(std::int64_t y) const;

  // A stretch of the outline in one row, at the right of the centre; the left one mirrors it.
  struct Run {
    std::int64_t inner;
    std::int64_t outer;
  };
  Run run(std::int64_t y) const;
  std::int64_t right(std::int64_t half_pixels) const { return (centre_x_ + half_pixels) / 2; }
  std::int64_t left(std::int64_t half_pixels) const { return (centre_x_ - half_pixels) / 2; }

  // Pixels of the outline; where it is flat, its pixels count twice.
  std::int64_t length() const { return std::max<std::int64_t>(4 * quarter_ - 2 * odd_width() - 2 * odd_height(), 1); }
  // Place of an outline's pixel on it, 0 to length() - 1.
  std::int64_t place_of(std::int64_t x, std::int64_t y) const;
  // Place of the pixel where the ray from the centre through the point crosses the outline.
  std::int64_t place_towards(Point point) const;

  // Twice the centre.
  std::int64_t centre_x() const { return centre_x_; }
  std::int64_t centre_y() const { return centre_y_; }
  std::int64_t width() const { return width_; }
  std::int64_t height() const { return height_; }

 private:
  std::int64_t odd_width() const { return width_ & 1; }
  std::int64_t odd_height() const { return height_ & 1; }
  // Distances of the nearest column and row from the centre.
  std::int64_t nearest_column() const { return 1 - odd_width(); }
  std::int64_t nearest_row() const { return 1 - odd_height(); }

  // Rows of a half are counted outwards from the centre.
  std::int64_t half_rows() const { return (height_ + 1) / 2; }
  std::int64_t half_row_of(std::int64_t y) const;
  std::int64_t widest(std::int64_t half_row) const;
  std::int64_t find_turn() const;
  // Place on the first quarter, from the right to the top.
  std::int64_t quarter_place(std::int64_t half_row, std::int64_t half_pixels) const;
  // Place on the whole, of a pixel with that place on its quarter.
  std::int64_t whole_place(std::int64_t on_quarter, bool at_left, bool below) const;

  std::int64_t width_, height_;
  std::int64_t centre_x_, centre_y_;  // doubled
  std::int64_t turn_ = 0;             // below this row the outline has one pixel a row, above it one a column
  std::int64_t turn_column_ = 0;      // the widest of that row
  std::int64_t quarter_ = 0;          // pixels on a quarter
};

}  // namespace trelvo::raster
