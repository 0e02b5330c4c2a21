// Ties between the program's controls and Qt widgets. A tie listens for as long as its widget lives.
#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <string>

#include "platform/controls.h"
#include "windows/box_colors.h"

class QAbstractButton;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QScrollBar;
class QWidget;

namespace trelvo {

class DesktopQt;

inline QString qt(const std::string& text) { return QString::fromStdString(text); }

inline QColor color_of(Color color) { return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF}; }

// Runs now and at each change of the property.
void follow(QObject* owner, PropertyBase& property, const std::function<void()>& action);

// Visible and Enabled, the accessible name, and the place of the control for the keyboard focus.
void bind_control(DesktopQt& desktop, QWidget* widget, Control& control, const QString& accessible_name);

void bind_label(DesktopQt& desktop, QLabel* widget, Label& label);
void bind_text(DesktopQt& desktop, QLineEdit* widget, TextBox& box, const QString& accessible_name,
               FieldColors colors = FieldColors::of_state);
void bind_button(DesktopQt& desktop, QAbstractButton* widget, Button& button);
void bind_option(DesktopQt& desktop, QAbstractButton* widget, OptionButton& option);
void bind_check(DesktopQt& desktop, QCheckBox* widget, CheckBox& box, const QString& accessible_name);
void bind_frame(DesktopQt& desktop, QGroupBox* widget, Frame& frame);
void bind_scroll(DesktopQt& desktop, QScrollBar* widget, ScrollBar& bar, const QString& accessible_name);

// A view of the rows: the chosen one and the first in view follow both ways.
QListView* make_list(DesktopQt& desktop, ListBox& list, const QString& accessible_name);
void bind_sample(DesktopQt& desktop, QLabel* widget, SampleLabel& sample);

}  // namespace trelvo
