// Rotation and mirror of points, in drawing units. No errors.
#pragma once

namespace trelvo {

// About the centre, in polar form; a positive angle turns from +x towards +y. A point on the centre stays.
void ruota_punto(double xc, double yc, double radianti, double& x, double& y);

// The degrees by which the angle of a text changes when the +x direction turns to (c, s): a text counts the other way.
double variazione_ang_testo(double c, double s);
// The same for a text at a distance from the centre of a rotation. At distance 0 it is 90 whatever the rotation.
double variazione_ang_testo_ruotato(double distanza, double radianti);

// Reflection about the axis through two points; coincident ones make a vertical axis.
class specchio {
 public:
  specchio(double x1, double y1, double x2, double y2);
  void rifletti(double& x, double& y) const;

 private:
  double x1_;
  double y1_;
  double coseno_;
  double seno_;
};

}  // namespace trelvo
