// A modal form in a window of its own.
#pragma once

#include <QDialog>

#include "platform/controls.h"

namespace trelvo {

class DesktopQt;

class FormDialog : public QDialog {
 public:
  // The layout is found by the form's name.
  FormDialog(DesktopQt& desktop, Form& form, QWidget* parent);

  // Shows it until the form is hidden or unloaded.
  void run();

  // Esc presses this button.
  void set_leave_button(Button& leave) { leave_ = &leave; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  DesktopQt& desktop_;
  Form& form_;
  Button* leave_ = nullptr;
};

}  // namespace trelvo
