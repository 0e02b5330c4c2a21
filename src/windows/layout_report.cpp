// Layouts of the dialogs of the report editor.
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "report/rientri.h"
#include "report/trova.h"
#include "windows/binding.h"
#include "windows/dialog_layouts.h"
#include "windows/dialog_parts.h"
#include "windows/form_dialog.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

TextEntry* add_row(DesktopQt& desktop, QGridLayout& grid, int row, Label& label, TextBox& box, int characters) {
  auto* title = new QLabel;
  bind_label(desktop, title, label);
  QString name = qt(label.Caption);
  auto* entry = make_entry(desktop, box, name.remove(':'), characters);
  title->setBuddy(entry);
  grid.addWidget(title, row, 0);
  grid.addWidget(entry, row, 1);
  return entry;
}

}  // namespace

void lay_out_trova(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  constexpr int width = 30;
  auto& t = dynamic_cast<trovaForm&>(form);
  auto* grid = new QGridLayout;
  TextEntry* wanted = add_row(desktop, *grid, 0, t.Label1, t.Text1, width);
  add_row(desktop, *grid, 1, t.Label2, t.Text2, width);
  auto* letters = new QCheckBox;
  bind_check(desktop, letters, t.Check1, qt(t.Check1.Caption));
  grid->addWidget(letters, 2, 1);
  grid->setRowStretch(3, 1);

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(make_button(desktop, t.Command1, true));
  for (Button* button : {&t.Command2, &t.Command3, &t.Command4}) buttons->addWidget(make_button(desktop, *button));
  buttons->addStretch(1);
  dialog.set_leave_button(t.Command4);

  auto* layout = new QHBoxLayout(&dialog);
  layout->addLayout(grid, 1);
  layout->addSpacing(8);
  layout->addLayout(buttons);
  wanted->setFocus();
}

void lay_out_rientri(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  constexpr int width = 10;
  auto& r = dynamic_cast<rientriForm&>(form);
  auto* grid = new QGridLayout;
  TextEntry* left = add_row(desktop, *grid, 0, r.Label1, r.Text1, width);
  add_row(desktop, *grid, 1, r.Label2, r.Text2, width);
  add_row(desktop, *grid, 2, r.Label3, r.Text3, width);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addLayout(grid);
  layout->addLayout(button_row(desktop, dialog, r.Command1, r.Command2));
  left->setFocus();
}

}  // namespace trelvo
