#include "windows/dialog_parts.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/form_dialog.h"
#include "windows/text_entry.h"

namespace trelvo {

QPushButton* make_button(DesktopQt& desktop, Button& button, bool is_default) {
  auto* widget = new QPushButton;
  // Enter presses the button that has the keyboard, and elsewhere the default one.
  widget->setAutoDefault(true);
  widget->setDefault(is_default);
  bind_button(desktop, widget, button);
  return widget;
}

QRadioButton* make_option(DesktopQt& desktop, OptionButton& option) {
  auto* widget = new QRadioButton;
  bind_option(desktop, widget, option);
  return widget;
}

TextEntry* make_entry(DesktopQt& desktop, TextBox& box, const QString& name, int characters, FieldColors colors) {
  auto* widget = new TextEntry(desktop, box);
  bind_text(desktop, widget, box, name, colors);
  widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * (characters + 3));
  // What is hidden keeps its place, so that nothing jumps.
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

QLayout* button_row(DesktopQt& desktop, FormDialog& dialog, Button& confirm, Button& leave) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(make_button(desktop, confirm, true));
  row->addWidget(make_button(desktop, leave));
  dialog.set_leave_button(leave);
  return row;
}

Canvas* make_preview(DesktopQt& desktop, RasterSurface& surface, std::vector<OverlayLine*> lines,
                     std::vector<OverlayShape*> shapes) {
  auto* canvas = new Canvas(surface, std::move(lines), std::move(shapes));
  canvas->keep_size();
  canvas->setAccessibleName("Anteprima");
  desktop.keep_fresh(canvas);
  return canvas;
}

QGroupBox* make_group(DesktopQt& desktop, Frame& frame) {
  auto* group = new QGroupBox;
  bind_frame(desktop, group, frame);
  return group;
}

}  // namespace trelvo
