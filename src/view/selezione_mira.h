// What lies under the pointer: hit tests of a pick, the same for the snap search.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Half the pick box in drawing units.
double raggio_mira(const distipo& doc);

// The circle about a point, in drawing units, that an outline must cross to be hit.
struct mira {
  double X;
  double Y;
  double R;
};

bool in_mira(distipo& doc, const Linea& o, const mira& m);
bool in_mira(distipo& doc, const Arco& o, const mira& m);
bool in_mira(distipo& doc, const Cerchio& o, const mira& m);
bool in_mira(distipo& doc, const polilinea& o, const mira& m);
bool in_mira(distipo& doc, const Rettangolo& o, const mira& m);
bool in_mira(distipo& doc, const superficie& o, const mira& m);
bool in_mira(distipo& doc, const testo& o, const mira& m);

}  // namespace trelvo
