// How far an object reaches: the boxes outside of which no exact test of the view can accept it, rounding of those
// tests included. In drawing units.
#pragma once

#include <optional>

#include "document/distipo.h"
#include "geometry/finestra.h"
#include "view/selezione_mira.h"

namespace trelvo {

// A test by a window accepts an object only if the window touches `vicino`; one by a pick only if the zone of the pick
// touches `vicino`, or its row touches `lontano`.
struct portata {
  riquadro vicino = riquadro::ovunque();
  std::optional<riquadro> lontano;
};

// Deals with the fields as they are; the surface's font changes for a text.
portata portata_di(distipo& doc, const Linea& o);
portata portata_di(distipo& doc, const Arco& o);
portata portata_di(distipo& doc, const Cerchio& o);
portata portata_di(distipo& doc, const polilinea& o);
portata portata_di(distipo& doc, const Rettangolo& o);
portata portata_di(distipo& doc, const superficie& o);
portata portata_di(distipo& doc, const testo& o);

riquadro zona_di(const mira& m);
riquadro riga_di(const mira& m);

// Beyond these the tests run into the ends of the floats, and nothing is told of them.
bool a_portata(const finestra& f);
bool a_portata(const mira& m);
// Scales at which the box of a text is the same as at any other, but for rounding.
bool scala_comune(double rapscala);

}  // namespace trelvo
