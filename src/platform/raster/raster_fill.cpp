#include "platform/raster/raster_fill.h"

#include <optional>
#include <vector>

namespace trelvo::raster {

namespace {

// One side of the polygon, walked down row by row. Holds its crossing with the row exactly, as whole and rest / run.
struct Edge {
  std::int64_t first_row = 0;
  std::int64_t end_row = 0;
  std::int64_t whole = 0;
  std::uint64_t rest = 0;
  std::int64_t step_whole = 0;
  std::uint64_t step_rest = 0;
  std::uint64_t run = 1;

  // The first pixel at the right of the crossing, or on it.
  std::int64_t column() const { return whole + (rest != 0 ? 1 : 0); }
  void step() {
    whole += step_whole;
    rest += step_rest;
    if (rest >= run) {
      rest -= run;
      ++whole;
    }
  }
};

// None if no visible row crosses it.
std::optional<Edge> edge_between(Point a, Point b, const Range& visible) {
  const Point top = a.y < b.y ? a : b;
  const Point bottom = a.y < b.y ? b : a;
  Edge edge;
  edge.first_row = std::max<std::int64_t>(top.y, visible.first);
  edge.end_row = std::min<std::int64_t>(bottom.y, visible.last + 1);
  if (edge.first_row >= edge.end_row) return std::nullopt;

  const std::int64_t across = static_cast<std::int64_t>(bottom.x) - top.x;
  const std::int64_t down = static_cast<std::int64_t>(bottom.y) - top.y;
  edge.run = static_cast<std::uint64_t>(down);
  edge.step_whole = across / down - (across % down < 0 ? 1 : 0);
  edge.step_rest = static_cast<std::uint64_t>(across - edge.step_whole * down);

  const std::int64_t skipped = edge.first_row - top.y;
  const std::uint64_t rests = static_cast<std::uint64_t>(skipped) * edge.step_rest;
  edge.whole = top.x + skipped * edge.step_whole + static_cast<std::int64_t>(rests / edge.run);
  edge.rest = rests % edge.run;
  return edge;
}

std::vector<Edge> visible_edges(std::span<const Point> points, const Range& visible) {
  std::vector<Edge> edges;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point next = points[i + 1 < points.size() ? i + 1 : 0];
    if (const auto edge = edge_between(points[i], next, visible)) edges.push_back(*edge);
  }
  std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.first_row < b.first_row; });
  return edges;
}

bool left_of(const Edge& a, const Edge& b) { return a.column() < b.column(); }

}  // namespace

void fill_polygon(Bitmap& bitmap, const BrushInk& ink, std::span<const Point> points) {
  if (!ink.paints() || columns(bitmap).empty()) return;
  const std::vector<Edge> edges = visible_edges(points, rows(bitmap));
  std::vector<Edge> active;
  std::int64_t y = 0;
  for (auto next = edges.begin(); next != edges.end() || !active.empty();) {
    y = active.empty() ? next->first_row : y + 1;
    while (next != edges.end() && next->first_row == y) active.push_back(*next++);
    if (!std::is_sorted(active.begin(), active.end(), left_of)) std::sort(active.begin(), active.end(), left_of);
    for (std::size_t i = 0; i + 1 < active.size(); i += 2) {
      ink.fill(bitmap, y, {active[i].column(), active[i + 1].column() - 1});
    }
    std::erase_if(active, [y](const Edge& edge) { return edge.end_row == y + 1; });
    for (Edge& edge : active) edge.step();
  }
}

}  // namespace trelvo::raster
