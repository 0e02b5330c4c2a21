// The sheet in the dialog `Geststamp`.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Sizes the sheet's picture and its shadow for the printer's paper. Error 482 without a printer.
void selcarta(trelvobas& bas);

// Draws the sheet anew, unless the scale reads as zero.
void agganteprima(trelvobas& bas);

// Scale and origin as the dialog's boxes read. Error 6 for what is out of range.
void leggi_caselle(const trelvobas& bas, double& scala, double& origine_x, double& origine_y);

}  // namespace trelvo
