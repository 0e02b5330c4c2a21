// The two entry fields of the frame, which speak to the active document. Typed coordinates are drawing units, x and y
// parted by a comma; a single number is both.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

double fx1(const trelvobas& bas);
double fy1(const trelvobas& bas);
double fx2(const trelvobas& bas);
double fy2(const trelvobas& bas);

void Text1_KeyPress(trelvobas& bas, int& KeyAscii);
void Text2_KeyPress(trelvobas& bas, int& KeyAscii);

}  // namespace trelvo
