// The pieces that the layouts of the modal forms are made of: bound widgets with their usual size and keys.
#pragma once

#include <QString>

#include "platform/controls.h"
#include "windows/box_colors.h"

class QGroupBox;
class QLayout;
class QPushButton;
class QRadioButton;

namespace trelvo {

class DesktopQt;
class FormDialog;
class TextEntry;

QPushButton* make_button(DesktopQt& desktop, Button& button, bool is_default = false);
QRadioButton* make_option(DesktopQt& desktop, OptionButton& option);
// Wide enough for that many characters.
TextEntry* make_entry(DesktopQt& desktop, TextBox& box, const QString& name, int characters,
                      FieldColors colors = FieldColors::of_state);
QGroupBox* make_group(DesktopQt& desktop, Frame& frame);
// Enter presses `confirm`, Esc presses `leave`.
QLayout* button_row(DesktopQt& desktop, FormDialog& dialog, Button& confirm, Button& leave);

}  // namespace trelvo
