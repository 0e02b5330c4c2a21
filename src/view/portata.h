// How far an object reaches: the box outside of which no exact test of the view can accept it, rounding of those
// tests included. In drawing units.
#pragma once

#include "document/distipo.h"
#include "geometry/finestra.h"
#include "view/selezione_mira.h"

namespace trelvo {

// A test by a window accepts an object only if the window touches its box, one by a pick only if the zone of the pick
// does.
// Deals with the fields as they are; the surface's font changes for a text.
riquadro portata_di(distipo& doc, const Linea& o);
riquadro portata_di(distipo& doc, const Arco& o);
riquadro portata_di(distipo& doc, const Cerchio& o);
riquadro portata_di(distipo& doc, const polilinea& o);
riquadro portata_di(distipo& doc, const Rettangolo& o);
riquadro portata_di(distipo& doc, const superficie& o);
riquadro portata_di(distipo& doc, const testo& o);

riquadro zona_di(const mira& m);

// Beyond these the tests run into the ends of the floats, and nothing is told of them.
bool a_portata(const finestra& f);
bool a_portata(const mira& m);
// Scales at which the box of a text is the same as at any other, but for rounding.
bool scala_comune(double rapscala);

}  // namespace trelvo
