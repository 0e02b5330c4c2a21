// A window of the drawing: an axis-aligned box in drawing units, with x1 <= x2 and y1 <= y2.
#pragma once

namespace trelvo {

struct finestra {
  double x1;
  double y1;
  double x2;
  double y2;

  // Any two opposite corners.
  static finestra ordinata(double xa, double ya, double xb, double yb) {
    return {xa > xb ? xb : xa, ya > yb ? yb : ya, xa > xb ? xa : xb, ya > yb ? ya : yb};
  }

  // Bounds included.
  bool contiene(double x, double y) const { return x1 <= x && x <= x2 && y1 <= y && y <= y2; }
};

// The sides beyond which a point lies, a bit a side; 0 for a point inside, and for one that is no number. Points with
// a bit in common lie on one side of the window, and so does whatever runs between them.
inline unsigned lati_oltre(const finestra& f, double x, double y) {
  return static_cast<unsigned>(x < f.x1) | static_cast<unsigned>(x > f.x2) << 1U |
         static_cast<unsigned>(y < f.y1) << 2U | static_cast<unsigned>(y > f.y2) << 3U;
}
constexpr unsigned ogni_lato = 15;

}  // namespace trelvo
