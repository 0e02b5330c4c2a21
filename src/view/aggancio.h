// Object snap: the characteristic point of the object under the pointer.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Searches at a point in drawing units by the filter in force (2 start, 3 end, 4 middle, 6 centre). A find sets
// `trovatofiltro` to 1 and writes the point; without one all stays as it was.
void selezoggettifiltri(distipo& doc, double X, double Y);

}  // namespace trelvo
