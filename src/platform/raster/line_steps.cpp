#include "platform/raster/line_steps.h"

#include <cstdlib>

namespace trelvo::raster {

namespace {

std::int64_t distance(std::int32_t from, std::int32_t to) { return std::abs(static_cast<std::int64_t>(to) - from); }

bool beyond(std::int32_t a, std::int32_t b, int size) { return (a < 0 && b < 0) || (a >= size && b >= size); }

// Steps in the direction of `sign` from `start` that stay on 0 to size - 1.
Range steps_on(std::int64_t start, std::int64_t sign, std::int64_t size) {
  if (sign > 0) return {-start, size - 1 - start};
  return {start - (size - 1), start};
}

}  // namespace

std::int64_t steps_between(Point from, Point to) { return std::max(distance(from.x, to.x), distance(from.y, to.y)); }

bool misses(const Bitmap& bitmap, Point from, Point to) {
  return beyond(from.x, to.x, bitmap.width) || beyond(from.y, to.y, bitmap.height);
}

LineSteps::LineSteps(Point from, Point to) {
  const std::int64_t across = distance(from.x, to.x);
  const std::int64_t down = distance(from.y, to.y);
  const std::int64_t x_sign = to.x < from.x ? -1 : 1;
  const std::int64_t y_sign = to.y < from.y ? -1 : 1;
  flat_ = across >= down;
  run_ = static_cast<std::uint64_t>(std::max<std::int64_t>(flat_ ? across : down, 1));
  rise_ = static_cast<std::uint64_t>(flat_ ? down : across);
  start_along_ = flat_ ? from.x : from.y;
  start_across_ = flat_ ? from.y : from.x;
  along_sign_ = flat_ ? x_sign : y_sign;
  across_sign_ = flat_ ? y_sign : x_sign;
}

std::int64_t LineSteps::sideways(std::int64_t step) const {
  const std::uint64_t product = static_cast<std::uint64_t>(step) * rise_;
  const std::uint64_t twice_rest = product % run_ * 2;
  const bool next = across_sign_ > 0 ? twice_rest > run_ : twice_rest >= run_;
  return static_cast<std::int64_t>(product / run_ + (next ? 1 : 0));
}

std::int64_t LineSteps::first_reaching(std::int64_t moved, const Range& range) const {
  std::int64_t low = range.first;
  std::int64_t high = range.last + 1;
  while (low < high) {
    const std::int64_t middle = low + (high - low) / 2;
    if (sideways(middle) >= moved) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return low;
}

Range LineSteps::within(const Bitmap& bitmap, std::int64_t count) const {
  const int along_size = flat_ ? bitmap.width : bitmap.height;
  const int across_size = flat_ ? bitmap.height : bitmap.width;
  Range steps = steps_on(start_along_, along_sign_, along_size).cut(0, count - 1);
  const Range moves = steps_on(start_across_, across_sign_, across_size);
  if (steps.empty()) return steps;
  if (sideways(steps.first) < moves.first) steps.first = first_reaching(moves.first, steps);
  if (!steps.empty() && sideways(steps.last) > moves.last) steps.last = first_reaching(moves.last + 1, steps) - 1;
  return steps;
}

LineSteps::Walker LineSteps::walk_from(std::int64_t step) const {
  const std::int64_t along = start_along_ + along_sign_ * step;
  const std::int64_t across = start_across_ + across_sign_ * sideways(step);
  // How far the true line has run ahead of the last change of pixel.
  const auto rest = static_cast<std::int64_t>(static_cast<std::uint64_t>(step) * rise_ % run_);
  const auto run = static_cast<std::int64_t>(run_);
  std::int64_t error = 2 * rest + run - (across_sign_ > 0 ? 1 : 0);
  if (error >= 2 * run) error -= 2 * run;

  Walker walker{};
  walker.x = flat_ ? along : across;
  walker.y = flat_ ? across : along;
  walker.major_x = flat_ ? along_sign_ : 0;
  walker.major_y = flat_ ? 0 : along_sign_;
  walker.minor_x = flat_ ? 0 : across_sign_;
  walker.minor_y = flat_ ? across_sign_ : 0;
  walker.error = error;
  walker.rise = 2 * static_cast<std::int64_t>(rise_);
  walker.run = 2 * run;
  return walker;
}

}  // namespace trelvo::raster
