// Handlers of the menus of a document, and what opens with them.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

// Links every menu item and scroll bar of a new document to its handler.
void collega(distipo& doc);

// "Zoom %" asks for its percentage in a dialog; the others act at once.
void scegli_zoom(distipo& doc, int Index);
void prepara_zoomp(trelvobas& bas);

}  // namespace trelvo
