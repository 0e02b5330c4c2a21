// Room for the forms on small or scaled screens.
#pragma once

#include <QSize>

#include "platform/controls.h"

namespace trelvo {

// Before the form is loaded: what it measures by its room takes no more of it than a screen of this size has, in
// pixels.
void fit_to_screen(Form& form, const QSize& screen);

}  // namespace trelvo
