// The rubber band: while a command waits for its next point, the overlays show what it would do.
#pragma once

#include <cstdint>

#include "document/distipo.h"

namespace trelvo {

// First point and pointer, as a move brings them and as they were measured.
struct banda {
  // Logical units.
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  // Drawing units, rounded to the step's decimals while the step is on.
  double ax = 0;
  double ay = 0;
  double bx = 0;
  double by = 0;
  double DX = 0;
  double DY = 0;
  double L = 0;
  // DX, DY, L in logical units.
  double sx = 0;
  double sy = 0;
  double sl = 0;
};

// Shows the band's line and the plain shape, applies the orthogonal constraint if asked to (x2, y2 change for the
// caller), measures. x1, y1 in drawing units, x2, y2 in logical ones.
banda tendi_banda(distipo& doc, double x1, double y1, float& x2, float& y2, bool orto);

// Readouts: " DX=", " DY=" in Text5 and Text6; " L=" or " R=" in Text7; the pair in Text2.
void leggi_spostamento(distipo& doc, const banda& b);
void leggi_lunghezza(distipo& doc, const banda& b, const char* nome);
void leggi_coppia(distipo& doc, const banda& b);

// A default pen and fill, as the overlays show them.
struct pennabanda {
  Color colore;
  std::int32_t spessore;
  std::int32_t tratto;
};
void penna_linea(distipo& doc, const pennabanda& penna);
void penna_figura(distipo& doc, const pennabanda& penna, std::int32_t campitura, Color fondo);
pennabanda penna_linee(const distipo& doc);
pennabanda penna_superfici(const distipo& doc);

// Shape1 as the window between the two points; the band's line is hidden.
void finestra_banda(distipo& doc, const banda& b);
// Shape1 as a selection or zoom window, solid or dotted.
void finestra_selezione(distipo& doc, const banda& b, bool continua);
// Shape1 as the circle about the first point.
void cerchio_banda(distipo& doc, const banda& b);
// Line4 from the second point of the arc in progress to the pointer.
void secondo_lato(distipo& doc, const banda& b);

}  // namespace trelvo
