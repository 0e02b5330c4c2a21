// Colours of entry fields, so that what they say stays readable in every theme.
#pragma once

#include <QColor>

#include "platform/controls.h"

class QLineEdit;
class QWidget;

namespace trelvo {

// White and grey say that a field is on or off: in a dark theme it takes that theme's own colours for these. The back
// colour of a field that shows a colour stays as it is.
enum class FieldColors { of_state, to_show };

// Now and at each change of the field's colours.
void follow_colors(QLineEdit* widget, TextBox& box, FieldColors meaning);

// The back colour of a field that is paper, and black or white on it.
void show_back_color(QWidget* widget, Color color);

// The colour itself if it stands out from the background, else nearer to black or white, whichever does.
QColor readable_on(const QColor& back, const QColor& color);
// Black or white.
QColor readable_on(const QColor& back);

}  // namespace trelvo
