// The file dialogs of the desktop, opened in the folder used last.
#pragma once

#include "platform/desktop.h"

class QWidget;

namespace trelvo {

// False if the user cancelled. A name without an ending takes that of the filter.
bool ask_open_name(QWidget* parent, CommonDialog& dialog);
bool ask_save_name(QWidget* parent, CommonDialog& dialog);

}  // namespace trelvo
