// The part of a figure that lies near enough to a sheet to be seen, so that a page description never has to hold
// numbers beyond its exactness. Figures that are near come back as they are.
#pragma once

#include <QLineF>
#include <QPolygonF>
#include <optional>

namespace trelvo {

// Nothing beyond it lies on any sheet, in dots.
constexpr double nearness = 1e6;

bool is_near(const QPolygonF& points);

// None if the line passes by, or a number is none.
std::optional<QLineF> near_part(const QLineF& line);

// The inside by the even-odd rule stays what it is; the outline may run along the bounds.
QPolygonF near_area(const QPolygonF& closed);

}  // namespace trelvo
