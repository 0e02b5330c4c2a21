#include "windows/strips.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

QFrame* make_strip(DesktopQt& desktop, Control& strip, const QString& name) {
  auto* frame = new QFrame;
  frame->setFrameShape(QFrame::StyledPanel);
  bind_control(desktop, frame, strip, name);
  return frame;
}

// White and grey fields would glare in a dark theme: there they take its own colours for what is on and off.
void follow_theme(TextEntry* entry, TextBox& box) {
  follow(entry, box.BackColor, [entry, &box] {
    const QPalette theme = QApplication::palette();
    if (qGray(theme.color(QPalette::Window).rgb()) >= 128) return;
    const auto role = box.BackColor == rgb(255, 255, 255) ? QPalette::Base : QPalette::Button;
    QPalette palette = entry->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      palette.setColor(group, QPalette::Base, theme.color(QPalette::Active, role));
      palette.setColor(group, QPalette::Text, theme.color(QPalette::Active, QPalette::Text));
    }
    entry->setPalette(palette);
  });
}

void add_entry(DesktopQt& desktop, QGridLayout& layout, int row, Label& prompt, TextBox& box, const QString& name) {
  auto* label = new QLabel;
  label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 38);
  bind_label(desktop, label, prompt);
  auto* entry = new TextEntry(desktop, box);
  bind_text(desktop, entry, box, name);
  follow_theme(entry, box);
  label->setBuddy(entry);
  layout.addWidget(label, row, 0);
  layout.addWidget(entry, row, 1);
}

// A switch of the status strip: black while on, grey while off, in the theme's own black and grey.
QToolButton* make_switch(DesktopQt& desktop, Label& label) {
  auto* button = new QToolButton;
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  bind_control(desktop, button, label, {});
  follow(button, label.Caption, [button, &label] {
    button->setText(qt(label.Caption));
    button->setAccessibleName(qt(label.Caption));
  });
  follow(button, label.ToolTipText, [button, &label] {
    button->setToolTip(qt(label.ToolTipText));
    button->setAccessibleDescription(qt(label.ToolTipText));
  });
  follow(button, label.ForeColor, [button, &label] {
    QPalette palette;
    const auto group = label.ForeColor == 0 ? QPalette::Active : QPalette::Disabled;
    const QColor text = palette.color(group, QPalette::WindowText);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) palette.setColor(role, text);
    button->setPalette(palette);
    QFont font = button->font();
    font.setBold(label.ForeColor == 0);
    button->setFont(font);
  });
  QObject::connect(button, &QToolButton::clicked, button, [&desktop, &label] {
    desktop.run([&] {
      if (label.Click) label.Click();
    });
  });
  return button;
}

}  // namespace

QWidget* make_command_line(DesktopQt& desktop, frmMainForm& form) {
  QFrame* strip = make_strip(desktop, form.Picture2, "Riga comandi");
  auto* layout = new QGridLayout(strip);
  layout->setContentsMargins(6, 4, 6, 4);
  layout->setVerticalSpacing(4);
  add_entry(desktop, *layout, 0, form.Label1, form.Text1, "Primo valore");
  add_entry(desktop, *layout, 1, form.Label2, form.Text2, "Secondo valore");
  layout->setColumnStretch(1, 1);
  return strip;
}

QWidget* make_status_strip(DesktopQt& desktop, frmMainForm& form) {
  QFrame* strip = make_strip(desktop, form.Picture1, "Barra di stato");
  auto* layout = new QHBoxLayout(strip);
  layout->setContentsMargins(6, 2, 6, 2);
  auto* scale = new QLabel;
  bind_label(desktop, scale, form.Label3);
  scale->setToolTip("Scala del disegno");
  scale->setAccessibleDescription("Scala del disegno");
  scale->setMinimumWidth(scale->fontMetrics().averageCharWidth() * 18);
  layout->addWidget(scale);
  int number = 3;
  for (TextBox* reading : {&form.Text3, &form.Text4, &form.Text5, &form.Text6, &form.Text7}) {
    auto* entry = new TextEntry(desktop, *reading);
    entry->setFocusPolicy(Qt::NoFocus);
    bind_text(desktop, entry, *reading, QString("Lettura %1").arg(number++ - 2));
    follow_theme(entry, *reading);
    layout->addWidget(entry, 1);
  }
  for (Label* label : {&form.Label8, &form.Label9, &form.Label10, &form.Label11}) {
    layout->addWidget(make_switch(desktop, *label));
  }
  return strip;
}

}  // namespace trelvo
