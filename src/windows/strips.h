// The two strips at the foot of the frame.
#pragma once

#include "document/frmMain.h"

class QWidget;

namespace trelvo {

class DesktopQt;

QWidget* make_command_line(DesktopQt& desktop, frmMainForm& form);
QWidget* make_status_strip(DesktopQt& desktop, frmMainForm& form);

}  // namespace trelvo
