#include "windows/binding.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVariant>

#include "windows/desktop_qt.h"
#include "windows/frame_window.h"

namespace trelvo {

namespace {

// Keeps a listening as long as the widget it serves.
class Tie : public QObject {
 public:
  Tie(QObject* owner, Listening listening) : QObject(owner), listening_(std::move(listening)) {}

 private:
  Listening listening_;
};

// Tells the desktop which control has the keyboard.
class FocusWatch : public QObject {
 public:
  FocusWatch(QWidget* widget, DesktopQt& desktop, Control& control)
      : QObject(widget), desktop_(desktop), control_(control) {
    widget->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) desktop_.focus_came_to(control_);
    if (event->type() == QEvent::MouseMove && control_.MouseMove) desktop_.run([&] { control_.MouseMove(); });
    return QObject::eventFilter(watched, event);
  }

 private:
  DesktopQt& desktop_;
  Control& control_;
};

// Qt would hand the keyboard of a widget that goes to the next one in line, which may be another document: the frame
// keeps it at the one in front.
void give_up_keyboard(DesktopQt& desktop, QWidget* widget) {
  const QWidget* focused = QApplication::focusWidget();
  if (focused == nullptr || widget->window() != desktop.frame()) return;
  if (focused == widget || widget->isAncestorOf(focused)) desktop.frame()->focus_document();
}

}  // namespace

void follow(QObject* owner, PropertyBase& property, const std::function<void()>& action) {
  new Tie(owner, property.listen(action));
  action();
}

void bind_control(DesktopQt& desktop, QWidget* widget, Control& control, const QString& accessible_name) {
  if (!accessible_name.isEmpty()) widget->setAccessibleName(accessible_name);
  follow(widget, control.Visible, [&desktop, widget, &control] {
    if (!control.Visible) give_up_keyboard(desktop, widget);
    widget->setVisible(control.Visible);
  });
  follow(widget, control.Enabled, [&desktop, widget, &control] {
    if (!control.Enabled) give_up_keyboard(desktop, widget);
    widget->setEnabled(control.Enabled);
  });
  widget->setMouseTracking(true);
  new FocusWatch(widget, desktop, control);
  desktop.place_control(control, widget);
}

void bind_label(DesktopQt& desktop, QLabel* widget, Label& label) {
  widget->setTextFormat(Qt::PlainText);
  bind_control(desktop, widget, label, {});
  follow(widget, label.Caption, [widget, &label] { widget->setText(qt(label.Caption)); });
  follow(widget, label.ToolTipText, [widget, &label] { widget->setToolTip(qt(label.ToolTipText)); });
}

void bind_text(DesktopQt& desktop, QLineEdit* widget, TextBox& box, const QString& accessible_name,
               FieldColors colors) {
  bind_control(desktop, widget, box, accessible_name);
  follow(widget, box.Text, [widget, &box] {
    const QString text = qt(box.Text);
    if (widget->text() == text) return;
    widget->setText(text);
    // What the program wrote is replaced by typing; what does not fit shows from its start.
    if (widget->hasFocus()) {
      widget->selectAll();
    } else {
      widget->setCursorPosition(0);
    }
  });
  follow(widget, box.Locked, [widget, &box] { widget->setReadOnly(box.Locked); });
  follow_colors(widget, box, colors);
  QObject::connect(widget, &QLineEdit::textChanged, widget, [&desktop, &box](const QString& text) {
    const std::string typed = text.toStdString();
    if (box.Text.get() != typed) desktop.run([&] { box.Text = typed; });
  });
}

void bind_button(DesktopQt& desktop, QAbstractButton* widget, Button& button) {
  bind_control(desktop, widget, button, qt(button.Caption));
  follow(widget, button.Caption, [widget, &button] { widget->setText(qt(button.Caption)); });
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&desktop, &button] {
    desktop.run([&] {
      if (button.Click) button.Click();
    });
  });
}

void bind_option(DesktopQt& desktop, QAbstractButton* widget, OptionButton& option) {
  bind_control(desktop, widget, option, qt(option.Caption));
  follow(widget, option.Caption, [widget, &option] { widget->setText(qt(option.Caption)); });
  follow(widget, option.Value, [widget, &option] { widget->setChecked(option.Value); });
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&desktop, widget, &option] {
    desktop.run([&] {
      option.Value = true;
      if (option.Click) option.Click();
    });
  });
}

void bind_frame(DesktopQt& desktop, QGroupBox* widget, Frame& frame) {
  bind_control(desktop, widget, frame, qt(frame.Caption));
  follow(widget, frame.Caption, [widget, &frame] { widget->setTitle(qt(frame.Caption)); });
}

void bind_check(DesktopQt& desktop, QCheckBox* widget, CheckBox& box, const QString& accessible_name) {
  bind_control(desktop, widget, box, accessible_name);
  follow(widget, box.Caption, [widget, &box] { widget->setText(qt(box.Caption)); });
  follow(widget, box.Value, [widget, &box] { widget->setChecked(box.Value != 0); });
  QObject::connect(widget, &QCheckBox::clicked, widget,
                   [&desktop, &box](bool checked) { desktop.run([&] { box.Value = checked ? 1 : 0; }); });
}

void bind_sample(DesktopQt& desktop, QLabel* widget, SampleLabel& sample) {
  bind_label(desktop, widget, sample);
  widget->setAutoFillBackground(true);
  const auto show_colors = [widget, &sample] {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, color_of(sample.BackColor));
    palette.setColor(QPalette::WindowText, color_of(sample.ForeColor));
    widget->setPalette(palette);
  };
  follow(widget, sample.BackColor, show_colors);
  follow(widget, sample.ForeColor, show_colors);
  const auto show_font = [widget, &sample] {
    QFont font(qt(sample.FontName));
    if (sample.FontSize > 0) font.setPointSizeF(sample.FontSize);
    font.setBold(sample.FontBold);
    font.setItalic(sample.FontItalic);
    font.setUnderline(sample.FontUnderline);
    font.setStrikeOut(sample.FontStrikethru);
    widget->setFont(font);
  };
  for (PropertyBase* property :
       std::initializer_list<PropertyBase*>{&sample.FontName, &sample.FontSize, &sample.FontBold, &sample.FontItalic,
                                            &sample.FontUnderline, &sample.FontStrikethru}) {
    follow(widget, *property, show_font);
  }
}

void bind_scroll(DesktopQt& desktop, QScrollBar* widget, ScrollBar& bar, const QString& accessible_name) {
  bind_control(desktop, widget, bar, accessible_name);
  follow(widget, bar.Min, [widget, &bar] { widget->setMinimum(bar.Min); });
  follow(widget, bar.Max, [widget, &bar] { widget->setMaximum(bar.Max); });
  follow(widget, bar.SmallChange, [widget, &bar] { widget->setSingleStep(bar.SmallChange); });
  follow(widget, bar.LargeChange, [widget, &bar] { widget->setPageStep(bar.LargeChange); });
  follow(widget, bar.Value, [widget, &bar] {
    const QSignalBlocker quiet(widget);
    widget->setValue(bar.Value);
  });
  QObject::connect(widget, &QScrollBar::valueChanged, widget,
                   [&desktop, &bar](int value) { desktop.run([&] { bar.Value = value; }); });
}

}  // namespace trelvo
