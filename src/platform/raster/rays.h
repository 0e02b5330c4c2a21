// The two rays from the centre of an ellipse that bound an arc of it, counter-clockwise as seen on the screen.
#pragma once

#include "platform/raster/ellipse_grid.h"
#include "platform/raster/interval.h"

namespace trelvo::raster {

class Rays {
 public:
  Rays(const EllipseGrid& grid, Point start, Point end);

  // Equal rays leave nothing out.
  bool whole() const { return turn_ == 0 && !opposite_; }
  // From the first to the second ray is half a turn or less.
  bool convex() const { return turn_ > 0 || opposite_; }

  // Directions, y downwards.
  Offset start() const { return start_; }
  Offset end() const { return end_; }

  // The part of a row at the left of the first ray, and at the right of the second; x and y from the centre.
  Interval left_of_start(double y) const { return solution(start_.y, start_.x * y, far_away * far_away); }
  Interval right_of_end(double y) const { return solution(-end_.y, -end_.x * y, far_away * far_away); }

 private:
  Offset start_, end_;
  double turn_;    // positive if the second ray is less than half a turn behind the first
  bool opposite_;  // exactly half a turn
};

}  // namespace trelvo::raster
