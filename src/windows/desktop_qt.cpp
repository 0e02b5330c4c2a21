#include "windows/desktop_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTime>

#include "app/app.h"
#include "platform/qt/regional_qt.h"
#include "windows/binding.h"
#include "windows/color_dialog.h"
#include "windows/file_dialogs.h"
#include "windows/fit_to_screen.h"
#include "windows/font_dialog.h"
#include "windows/form_dialog.h"
#include "windows/frame_window.h"
#include "windows/printer_qt.h"

namespace trelvo {

namespace {

constexpr float twips_per_pixel = 15;

// A dialog that opens in the middle of an event: what was done so far shows behind it, and the user gets the pointer of
// one who is asked, not of one who waits.
class Interlude {
 public:
  explicit Interlude(DesktopQt& desktop) : desktop_(desktop) {
    desktop_.refresh();
    QApplication::restoreOverrideCursor();
  }
  Interlude(const Interlude&) = delete;
  Interlude& operator=(const Interlude&) = delete;
  ~Interlude() { desktop_.show_pointer(); }

 private:
  DesktopQt& desktop_;
};

// An error that the program does not foresee ends the event like those that it does.
void run_guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError&) {
    throw;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    throw RuntimeError(error_bad_call, error.what());
  }
}

}  // namespace

DesktopQt::DesktopQt() {
  MousePointer.on_change([this] { show_pointer(); });
}

DesktopQt::~DesktopQt() = default;

void DesktopQt::hide_frame() { frame_.reset(); }

void DesktopQt::run(const std::function<void()>& action) {
  evento(*bas_, [&] { run_guarded(action); });
  if (after_event) after_event();
  refresh();
}

void DesktopQt::refresh() {
  if (frame_) frame_->refresh();
  std::erase(canvases_, nullptr);
  for (const QPointer<Canvas>& canvas : canvases_) canvas->refresh();
}

void DesktopQt::show_pointer() {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (MousePointer == pointer_hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void DesktopQt::forget(const Form& form) {
  for (const Control* control : form.controls) widgets_.erase(control);
  if (focus() != nullptr && &focus()->form == &form) Desktop::set_focus(nullptr);
}

void DesktopQt::set_focus(Control* control) {
  Desktop::set_focus(control);
  const auto place = widgets_.find(control);
  if (place == widgets_.end() || !place->second) return;
  QWidget* widget = place->second;
  if (widget->hasFocus() || !widget->isVisible() || !widget->isEnabled()) return;
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* entry = qobject_cast<QLineEdit*>(widget)) entry->selectAll();
}

RegionalFormat DesktopQt::regional() const { return system_regional_format(); }

float DesktopQt::timer() const { return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000; }

float DesktopQt::screen_width() const {
  const QScreen* screen = QApplication::primaryScreen();
  return screen == nullptr ? 19200 : static_cast<float>(screen->size().width()) * twips_per_pixel;
}

QWidget* DesktopQt::parent() const {
  QWidget* active = QApplication::activeModalWidget();
  if (active != nullptr) return active;
  return frame_ ? frame_.get() : main_window_.data();
}

int DesktopQt::message_box(const std::string& text, Buttons buttons) {
  const Interlude interlude(*this);
  QMessageBox box(parent());
  box.setWindowTitle("Trelvo");
  box.setTextFormat(Qt::PlainText);
  box.setText(qt(text));
  if (buttons == Buttons::ok) {
    box.setIcon(QMessageBox::Information);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return answer_ok;
  }
  box.setIcon(QMessageBox::Question);
  QPushButton* yes = box.addButton("&Sì", QMessageBox::YesRole);
  QPushButton* no = box.addButton("&No", QMessageBox::NoRole);
  QPushButton* cancel = box.addButton("Annulla", QMessageBox::RejectRole);
  box.setDefaultButton(yes);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == yes) return answer_yes;
  return box.clickedButton() == no ? answer_no : answer_cancel;
}

void DesktopQt::beep() { QApplication::beep(); }

void DesktopQt::runtime_error(int number, const std::string& text) {
  const Interlude interlude(*this);
  QMessageBox box(QMessageBox::Critical, "Trelvo", QString("Errore di run-time '%1':\n\n%2").arg(number).arg(qt(text)),
                  QMessageBox::Ok, parent());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool DesktopQt::show_open(CommonDialog& dialog) {
  const Interlude interlude(*this);
  return ask_open_name(parent(), dialog);
}

bool DesktopQt::show_save(CommonDialog& dialog) {
  const Interlude interlude(*this);
  return ask_save_name(parent(), dialog);
}

bool DesktopQt::show_font(FontDialog& dialog) {
  const Interlude interlude(*this);
  return ask_font(parent(), dialog);
}

bool DesktopQt::show_color_titled(Color& color, const std::string& title) {
  const Interlude interlude(*this);
  return ask_color(parent(), color, qt(title));
}

bool DesktopQt::show_color(Color& color) {
  const Interlude interlude(*this);
  return ask_color(parent(), color);
}

std::string DesktopQt::clipboard_text() { return QApplication::clipboard()->text().toStdString(); }

void DesktopQt::set_clipboard_text(const std::string& text) { QApplication::clipboard()->setText(qt(text)); }

Printer& DesktopQt::printer() {
  if (!printer_) {
    printer_ = std::make_unique<PrinterQt>(
        [this] { return parent(); },
        [this] { return bas_->attivo() == nullptr ? std::string("Trelvo") : bas_->attivo()->Caption.get(); });
  }
  return *printer_;
}

bool DesktopQt::show_printer() {
  const Interlude interlude(*this);
  printer();
  return printer_->choose();
}

void DesktopQt::show_modal(Form& form) {
  fit_to_screen(form, QGuiApplication::primaryScreen()->availableSize());
  form.load();
  form.Visible = true;
  const Interlude interlude(*this);
  FormDialog dialog(*this, form, parent());
  dialog.run();
  forget(form);
}

void DesktopQt::process_events() {
  const QScopedValueRollback<bool> undisturbed(busy_, true);
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

Desktop::ClientSize DesktopQt::create_window(Form& document) {
  return frame_->create_document(dynamic_cast<distipo&>(document));
}

void DesktopQt::show_window(Form& document) { frame_->show_document(dynamic_cast<distipo&>(document)); }

void DesktopQt::destroy_window(Form& document) {
  frame_->destroy_document(dynamic_cast<distipo&>(document));
  forget(document);
}

void DesktopQt::activate_window(Form& document) { frame_->activate_document(dynamic_cast<distipo&>(document)); }

void DesktopQt::show_frame(Form& frame) {
  frame_ = std::make_unique<FrameWindow>(*this);
  frame.Visible = true;
  if (const QScreen* screen = QApplication::primaryScreen()) frame_->resize(screen->availableSize());
  frame_->showMaximized();
}

}  // namespace trelvo
