// Life of a document window: load, activation, resize, closing.
#pragma once

#include "document/trelvobas.h"

namespace trelvo {

void Form_Load(distipo& doc);
void Form_Activate(distipo& doc);
void Form_Deactivate(distipo& doc);
void Form_Resize(distipo& doc);
void Form_QueryUnload(distipo& doc, bool& Cancel);
void Form_Unload(distipo& doc);

// Number of the active document by its caption, among those up to `ndocumenti`.
void trova_disegnoattivo(distipo& doc);

}  // namespace trelvo
