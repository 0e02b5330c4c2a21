// The objects of a drawing as lines of text, every field as held.
#pragma once

#include <string>

#include "model/disegno.h"
#include "script/output.h"

namespace trelvo {

// All classes, or the one named. Fails for a name that is no class.
void print_objects(const disegno& dis, const std::string& only, Output& output);

}  // namespace trelvo
