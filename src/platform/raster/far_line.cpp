#include "platform/raster/far_line.h"

#include <algorithm>

namespace trelvo::raster {

namespace {

constexpr double largest = 2147483647.0;
// Half of what fits: farther than any bitmap or pen.
constexpr double reach = 1073741824.0;
// Differences of these are still finite.
constexpr double finite = 1e200;

bool fits(double value) { return std::abs(value) <= largest; }

// The part of a line, 0 to 1, that lies in the reach by one coordinate.
bool cut(double start, double change, double& first, double& last) {
  if (change == 0) return std::abs(start) <= reach;
  const double one = (-reach - start) / change;
  const double other = (reach - start) / change;
  first = std::max(first, std::min(one, other));
  last = std::min(last, std::max(one, other));
  return first <= last;
}

double held(double value) { return std::clamp(value, -reach, reach); }

std::optional<NearLine> cut_to_reach(const FarLine& line) {
  const double x = std::clamp(line.x1, -finite, finite);
  const double y = std::clamp(line.y1, -finite, finite);
  const double dx = std::clamp(line.x2, -finite, finite) - x;
  const double dy = std::clamp(line.y2, -finite, finite) - y;
  double first = 0;
  double last = 1;
  if (!cut(x, dx, first, last) || !cut(y, dy, first, last)) return std::nullopt;
  return NearLine{near_point(held(x + first * dx), held(y + first * dy)),
                  near_point(held(x + last * dx), held(y + last * dy))};
}

}  // namespace

std::optional<NearLine> reachable_part(const FarLine& line) {
  if (std::isnan(line.x1) || std::isnan(line.y1) || std::isnan(line.x2) || std::isnan(line.y2)) return std::nullopt;
  if (fits(line.x1) && fits(line.y1) && fits(line.x2) && fits(line.y2)) {
    return NearLine{near_point(line.x1, line.y1), near_point(line.x2, line.y2)};
  }
  return cut_to_reach(line);
}

}  // namespace trelvo::raster
