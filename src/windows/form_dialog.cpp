#include "windows/form_dialog.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>

#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/dialog_layouts.h"

namespace trelvo {

FormDialog::FormDialog(DesktopQt& desktop, Form& form, QWidget* parent)
    : QDialog(parent), desktop_(desktop), form_(form) {
  follow(this, form.Caption, [this] { setWindowTitle(qt(form_.Caption)); });
  lay_out_dialog(desktop_, *this, form);
}

void FormDialog::run() {
  QEventLoop loop;
  const Listening ended = form_.Visible.listen([&] {
    if (form_.Visible) return;
    hide();
    loop.quit();
  });
  if (!form_.Visible) return;
  setModal(true);
  show();
  // Typing replaces what the first field holds.
  if (auto* entry = qobject_cast<QLineEdit*>(focusWidget())) entry->selectAll();
  // A form that stands aside gives the windows behind it free.
  const Listening aside =
      form_.WindowState.listen([&] { setVisible(form_.Visible && form_.WindowState != window_minimised); });
  QTimer::singleShot(0, this, [this] {
    if (form_.Shown) desktop_.run(form_.Shown);
  });
  loop.exec();
}

void FormDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  desktop_.run([&] { form_.close(); });
}

void FormDialog::reject() {
  desktop_.run([&] {
    if (leave_ != nullptr && leave_->Click) {
      leave_->Click();
    } else {
      form_.close();
    }
  });
}

}  // namespace trelvo
