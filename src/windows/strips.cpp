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

// A strip of two halves side by side, or one above the other where the window is too narrow for both.
class FoldingStrip : public QFrame {
 public:
  // `first_width`: what the first half wants to be read.
  FoldingStrip(QLayout* first, int first_width, QLayout* second)
      : halves_(new QBoxLayout(QBoxLayout::LeftToRight, this)), second_(second), first_width_(first_width) {
    halves_->setContentsMargins(6, 2, 6, 2);
    halves_->addLayout(first, 1);
    halves_->addLayout(second);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    const bool narrow = width() < first_width_ + second_->sizeHint().width();
    halves_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QFrame::resizeEvent(event);
  }

 private:
  QBoxLayout* halves_;
  QLayout* second_;
  int first_width_;
};

void dress_strip(DesktopQt& desktop, QFrame* frame, Control& strip, const QString& name) {
  frame->setFrameShape(QFrame::StyledPanel);
  bind_control(desktop, frame, strip, name);
}

void add_entry(DesktopQt& desktop, QGridLayout& layout, int row, Label& prompt, TextBox& box, const QString& name) {
  auto* label = new QLabel;
  label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 38);
  bind_label(desktop, label, prompt);
  auto* entry = new TextEntry(desktop, box);
  bind_text(desktop, entry, box, name);
  label->setBuddy(entry);
  layout.addWidget(label, row, 0);
  layout.addWidget(entry, row, 1);
}

// A switch of the status strip: strong while on, pale while off, and still to be read.
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
    const bool on = label.ForeColor == 0;
    const QColor pale = palette.color(QPalette::Disabled, QPalette::WindowText);
    const QColor text = on ? palette.color(QPalette::WindowText) : readable_on(palette.color(QPalette::Window), pale);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) palette.setColor(role, text);
    button->setPalette(palette);
    QFont font = button->font();
    font.setBold(on);
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
  auto* strip = new QFrame;
  dress_strip(desktop, strip, form.Picture2, "Riga comandi");
  auto* layout = new QGridLayout(strip);
  layout->setContentsMargins(6, 4, 6, 4);
  layout->setVerticalSpacing(4);
  add_entry(desktop, *layout, 0, form.Label1, form.Text1, "Primo valore");
  add_entry(desktop, *layout, 1, form.Label2, form.Text2, "Secondo valore");
  layout->setColumnStretch(1, 1);
  return strip;
}

QWidget* make_status_strip(DesktopQt& desktop, frmMainForm& form) {
  constexpr int scale_width = 17;    // figures
  constexpr int reading_width = 21;  // to be read whole
  auto* readings = new QHBoxLayout;
  auto* scale = new QLabel;
  bind_label(desktop, scale, form.Label3);
  scale->setToolTip("Scala del disegno");
  scale->setAccessibleDescription("Scala del disegno");
  const int figure = scale->fontMetrics().horizontalAdvance('0');
  scale->setMinimumWidth(figure * scale_width);
  readings->addWidget(scale);
  int wide = figure * scale_width;
  int number = 3;
  for (TextBox* reading : {&form.Text3, &form.Text4, &form.Text5, &form.Text6, &form.Text7}) {
    auto* entry = new TextEntry(desktop, *reading);
    entry->setFocusPolicy(Qt::NoFocus);
    bind_text(desktop, entry, *reading, QString("Lettura %1").arg(number++ - 2));
    // What does not fit is there to be read all the same.
    follow(entry, reading->Text, [entry, reading] { entry->setToolTip(qt(reading->Text)); });
    readings->addWidget(entry, 1);
    wide += figure * reading_width;
  }
  auto* switches = new QHBoxLayout;
  for (Label* label : {&form.Label8, &form.Label9, &form.Label10, &form.Label11}) {
    switches->addWidget(make_switch(desktop, *label));
  }
  auto* strip = new FoldingStrip(readings, wide, switches);
  dress_strip(desktop, strip, form.Picture1, "Barra di stato");
  return strip;
}

}  // namespace trelvo
