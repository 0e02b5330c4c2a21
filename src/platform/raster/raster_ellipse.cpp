#include "platform/raster/raster_ellipse.h"

namespace trelvo::raster {

namespace {

// A part of the outline, in places on it.
struct Stretch {
  std::int64_t start;
  std::int64_t steps;  // to its last pixel
  std::int64_t round;  // pixels of the whole

  // Of a pixel of the outline; beyond `steps` if it is not on the stretch.
  std::int64_t steps_to(std::int64_t place) const {
    const std::int64_t ahead = place - start;
    return ahead < 0 ? ahead + round : ahead;
  }
};

Stretch whole_outline(const EllipseGrid& grid) { return {0, grid.length() - 1, grid.length()}; }

Stretch between_rays(const EllipseGrid& grid, Point start, Point end) {
  const Rays rays(grid, start, end);
  Stretch stretch = whole_outline(grid);
  stretch.start = grid.place_towards(start);
  if (rays.whole()) return stretch;
  const std::int64_t steps = stretch.steps_to(grid.place_towards(end));
  if (steps > 0 || rays.convex()) stretch.steps = steps;
  return stretch;
}

// The pixels of a run that belong to the stretch, one by one.
void put_run(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid, const Stretch& stretch, std::int64_t y,
             const Range& run) {
  const Range visible = run.cut(columns(bitmap));
  std::uint32_t* row = row_of(bitmap, y);
  for (std::int64_t x = visible.first; x <= visible.last; ++x) {
    const std::int64_t steps = stretch.steps_to(grid.place_of(x, y));
    if (steps <= stretch.steps) ink.put(row[x], static_cast<int>(steps % DashInk::period));
  }
}

template <class Paint>
void each_run(const Bitmap& bitmap, const EllipseGrid& grid, const Paint& paint) {
  if (grid.empty() || columns(bitmap).empty()) return;
  const Range visible = grid.row_range().cut(rows(bitmap));
  for (std::int64_t y = visible.first; y <= visible.last; ++y) {
    const EllipseGrid::Run run = grid.run(y);
    paint(y, Range{grid.left(run.outer), grid.left(run.inner)});
    if (run.outer > 0) paint(y, Range{grid.right(run.inner), grid.right(run.outer)});
  }
}

void outline(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid, const Stretch& stretch) {
  each_run(bitmap, grid, [&](std::int64_t y, const Range& run) { put_run(bitmap, ink, grid, stretch, y, run); });
}

}  // namespace

void fill_ellipse(Bitmap& bitmap, const BrushInk& ink, const EllipseGrid& grid) {
  if (!ink.paints() || grid.empty()) return;
  const Range visible = grid.row_range().cut(rows(bitmap));
  for (std::int64_t y = visible.first; y <= visible.last; ++y) ink.fill(bitmap, y, grid.inside(y));
}

void ellipse(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid) {
  if (ink.solid()) {
    each_run(bitmap, grid, [&](std::int64_t y, const Range& run) { fill_columns(bitmap, y, run, ink.color()); });
  } else {
    outline(bitmap, ink, grid, whole_outline(grid));
  }
}

void arc(Bitmap& bitmap, const DashInk& ink, const EllipseGrid& grid, Point start, Point end) {
  if (!grid.empty()) outline(bitmap, ink, grid, between_rays(grid, start, end));
}

}  // namespace trelvo::raster
