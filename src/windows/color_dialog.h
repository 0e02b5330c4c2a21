// The desktop's colour dialog.
#pragma once

#include <QString>

#include "platform/graphics.h"

class QWidget;

namespace trelvo {

// False if the user cancelled: the colour stays.
bool ask_color(QWidget* parent, Color& color, const QString& title = "Colore");

}  // namespace trelvo
