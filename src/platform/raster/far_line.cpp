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

struct Place {
  double along, across;
};

// Moves an end that lies too far along one direction to where the line comes into reach.
void bring_near(Place& end, const Place& other) {
  const double edge = std::clamp(end.along, -reach, reach);
  if (edge == end.along) return;
  end.across += (other.across - end.across) * ((edge - end.along) / (other.along - end.along));
  end.along = edge;
}

// False if the line stays out of reach in this direction.
bool bring_both_near(double& along1, double& across1, double& along2, double& across2) {
  if (std::min(along1, along2) > reach || std::max(along1, along2) < -reach) return false;
  Place first{along1, across1};
  Place second{along2, across2};
  bring_near(first, second);
  bring_near(second, first);
  along1 = first.along;
  across1 = first.across;
  along2 = second.along;
  across2 = second.across;
  return true;
}

std::optional<NearLine> cut_to_reach(FarLine line) {
  for (double* value : {&line.x1, &line.y1, &line.x2, &line.y2}) *value = std::clamp(*value, -finite, finite);
  if (!bring_both_near(line.x1, line.y1, line.x2, line.y2)) return std::nullopt;
  if (!bring_both_near(line.y1, line.x1, line.y2, line.x2)) return std::nullopt;
  const auto held = [](double value) { return std::clamp(value, -reach, reach); };
  return NearLine{near_point(held(line.x1), held(line.y1)), near_point(held(line.x2), held(line.y2))};
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
