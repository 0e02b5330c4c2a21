// The draw operations of the entity classes. They know device contexts and nothing of scale: coordinates are pixels as
// 32-bit floats gave them, rounded here to integers, halves to the even neighbour.
#pragma once

#include <cstdint>
#include <span>

#include "model/oggetti.h"
#include "platform/device_context.h"

namespace trelvo {

// Pen of an outline: style, width in pixels before rounding, colour.
struct contorno {
  std::int32_t tratto = 0;
  float spessore = 1;
  Color colore = 0;
};

// Brush of a fill: superficie reads its values with a small difference.
Brush pennello(std::int32_t campitura, Color colore);
Brush pennello_superficie(std::int32_t campitura, Color colore);

void disPolyline(DeviceContext& DC, std::span<const vertice> punti, const contorno& penna);
// Rectangles and surfaces.
void dispoligono(DeviceContext& DC, std::span<const vertice> punti, const contorno& penna, const Brush& fondo);
void discerchio(DeviceContext& DC, vertice centro, vertice punto, const contorno& penna, const Brush& fondo);
// Counter-clockwise as seen, from p1 to p2, on the circle through the three points.
void Disarco(DeviceContext& DC, vertice p1, vertice p2, vertice p3, const contorno& penna);
// The text at a position, with `altezza` in place of its own size: negative character height, positive cell height.
void dis_testo(DeviceContext& DC, const testo& t, vertice posizione, float altezza, Color colore);

}  // namespace trelvo
