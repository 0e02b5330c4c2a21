// Which objects a pick hits: those whose outline crosses the circle of radius R about (X, Y), in drawing units. What
// lies wholly inside that circle is not hit, nor is the inside of a filled object.
#pragma once

#include <cstddef>
#include <span>

#include "geometry/riquadro_testo.h"
#include "model/vertice.h"

namespace trelvo {

bool segmento_in_mira(double X, double Y, double R, double xi, double yi, double xf, double yf);

// `lato` is the first edge hit, from 0: from vertex `lato` to the next, the last of a closed outline to vertex 0.
// Without a hit it is left alone.
bool spezzata_in_mira(double X, double Y, double R, std::span<const vertice> vertici, bool chiusa, std::size_t& lato);

// The four edges of the box, counted like those of a closed outline.
bool riquadro_in_mira(double X, double Y, double R, const riquadro_testo& r, std::size_t& lato);
// The edges and the middle line.
bool testo_in_mira(double X, double Y, double R, const riquadro_testo& r);

// Needs no crossing point, so it knows no error.
bool cerchio_in_mira(double X, double Y, double R, double xc, double yc, double raggio);
// By the points of detinters_cerchio_cerchio and the span of detPinArco; a point without a root is none.
bool arco_in_mira(double X, double Y, double R, double p1x, double p1y, double p2x, double p2y, double p3x, double p3y);

}  // namespace trelvo
