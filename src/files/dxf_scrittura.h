// Writes a drawing as the text of a DXF file.
#pragma once

#include <cstddef>
#include <functional>
#include <span>

#include "model/disegno.h"
#include "platform/graphics.h"

namespace trelvo {

// The DXF number of a colour of the palette, 0 for any other.
int SELCOLxDXF(Color colore);

// Hands the file over piece by piece. Heights are counted up from `ymaxdis`, in drawing units. Radii are brought up to
// date. Whatever `scarica` throws comes through; error 6, when all is written, if a number was out of range.
void scrivi_dxf(disegno& dis, double ymaxdis, const std::function<void(std::span<const std::byte>)>& scarica);

}  // namespace trelvo
