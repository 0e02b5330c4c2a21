// What a cancelled command leaves: nothing selected, no stretch mark.
#pragma once

#include "model/disegno.h"

namespace trelvo {

// True if any object was selected. Marks are cleared on those objects if asked to.
bool deseleziona(disegno& dis, bool togli_segni);

}  // namespace trelvo
