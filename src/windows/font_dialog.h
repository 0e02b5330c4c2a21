// The desktop's font dialog, with a colour beside the font.
#pragma once

#include "platform/desktop.h"

class QWidget;

namespace trelvo {

// False if the user cancelled: nothing changes.
bool ask_font(QWidget* parent, FontDialog& dialog);

}  // namespace trelvo
