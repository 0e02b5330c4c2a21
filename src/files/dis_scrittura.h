// Writes a drawing as the bytes of a drawing file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

#include "files/dis_formato.h"
#include "model/disegno.h"

namespace trelvo {

// Takes the next piece of the file.
using consegna = std::function<void(std::span<const std::byte>)>;

// Each record holds the vertex count of the last polyline or surface before it, or that of the scratch record `scarto`
// before the first one. In the end `scarto` is the image of the last record. Whatever `scarica` throws comes through.
void scrivi_disegno(const testatadis& testata, const disegno& dis, reccomando& scarto, const consegna& scarica);

}  // namespace trelvo
