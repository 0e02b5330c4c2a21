// Properties of a document's surface, which a script reads as the document's own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/raster/raster_surface.h"

namespace trelvo {

// As it is printed; nothing for a name that no surface has.
std::optional<std::string> shown_surface_property(const RasterSurface& surface, std::string_view name);

}  // namespace trelvo
