// The frame's bars: toolbars, command line, status strip.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// 1 the status strip, 2 the command line; any other value does nothing.
void attivapicture(trelvobas& bas, int n);
void disattivapicture(trelvobas& bas, int n);
void attivabarraStrum(trelvobas& bas);
void disattivabarraStrum(trelvobas& bas);
void attivabarre(trelvobas& bas);
void disattivabarre(trelvobas& bas);

// Fits the bands of the toolbars to the screen.
void impostcoolbar(trelvobas& bas);

// Item of the menu `barre` of a document.
void barre_Click(distipo& doc, int Index);
// Bars and checks as a document's settings say.
void applica_barre(distipo& doc);

}  // namespace trelvo
