// An entry field whose keys pass the control's own handlers first.
#pragma once

#include <QLineEdit>

#include "platform/controls.h"

namespace trelvo {

class DesktopQt;

class TextEntry : public QLineEdit {
 public:
  TextEntry(DesktopQt& desktop, TextBox& box, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  DesktopQt& desktop_;
  TextBox& box_;
};

// Key code of the program for a key that has one, else 0; character code, 0 for none.
int key_code(const QKeyEvent& event);
int character_code(const QKeyEvent& event);

}  // namespace trelvo
