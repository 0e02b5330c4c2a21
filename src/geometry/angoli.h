// Directions in radians, from 0 up to 2 * pigreco, from +x towards +y of the coordinates as they stand. No errors.
#pragma once

namespace trelvo {

// The direction from point 0 to point 1; 0 for coincident points.
double detAngolo(double x0, double y0, double x1, double y1);
double angolo_retta_P1P2(double x1, double y1, double x2, double y2);

// Whether a point of the arc's circle lies in the span between the ends a and b, by the rule on the ends' y values:
// with ya above yb the span is the wrapped one, and it may then be the whole circle.
bool detPinArco(double Px, double Py, double Xc, double Yc, double xa, double ya, double xb, double yb);

// The angle by its sine and the signs of its legs; the legs may not both be 0. Shared with the polar rotation.
double arcoseno(double seno);
double angolo_nel_quadrante(double arco, double dx, double dy);

}  // namespace trelvo
