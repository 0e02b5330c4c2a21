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

// `nvertici` is that of the scratch record: each record holds the count of the last polyline or surface before it,
// whatever it was at the start, and the last one stays. Whatever `scarica` throws comes through.
void scrivi_disegno(const testatadis& testata, const disegno& dis, std::int16_t& nvertici, const consegna& scarica);

}  // namespace trelvo
