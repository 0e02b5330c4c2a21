// The pieces that the layouts of the modal forms are made of: bound widgets with their usual size and keys.
#pragma once

#include <QString>
#include <vector>

#include "platform/controls.h"
#include "platform/overlay.h"
#include "windows/box_colors.h"

class QGroupBox;
class QLayout;
class QPushButton;
class QRadioButton;

namespace trelvo {

class Canvas;
class DesktopQt;
class FormDialog;
class RasterSurface;
class TextEntry;

QPushButton* make_button(DesktopQt& desktop, Button& button, bool is_default = false);
QRadioButton* make_option(DesktopQt& desktop, OptionButton& option);
// Wide enough for that many characters.
TextEntry* make_entry(DesktopQt& desktop, TextBox& box, const QString& name, int characters,
                      FieldColors colors = FieldColors::of_state);
// A surface of fixed size with its overlays, shown again after each event that painted on it.
Canvas* make_preview(DesktopQt& desktop, RasterSurface& surface, std::vector<OverlayLine*> lines = {},
                     std::vector<OverlayShape*> shapes = {});
QGroupBox* make_group(DesktopQt& desktop, Frame& frame);
// Enter presses `confirm`, Esc presses `leave`.
QLayout* button_row(DesktopQt& desktop, FormDialog& dialog, Button& confirm, Button& leave);

}  // namespace trelvo
