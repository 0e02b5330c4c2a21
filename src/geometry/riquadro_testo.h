// The box of a text: corners in the order anchor, end of the top edge, bottom of that end, bottom under the anchor.
#pragma once

namespace trelvo {

struct riquadro_testo {
  double x[4];
  double y[4];
};

// Width, height and anchor in one unit of the caller's, which the corners come in too; the angle in degrees turns the
// opposite way to the directions of angoli.h. Other angles than finite ones give corners that are no numbers.
riquadro_testo vertici_testo(double X1, double Y1, double W, double H, double ang_testo_gradi);

// The line along the middle of the text, from the anchor's end to the other.
struct asse_testo {
  double x1;
  double y1;
  double x2;
  double y2;
};

inline asse_testo linea_media(const riquadro_testo& r) {
  return {(r.x[0] + r.x[3]) / 2, (r.y[0] + r.y[3]) / 2, (r.x[1] + r.x[2]) / 2, (r.y[1] + r.y[2]) / 2};
}

}  // namespace trelvo
