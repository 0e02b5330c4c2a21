#include "windows/text_entry.h"

#include <QKeyEvent>

#include "platform/text.h"
#include "windows/desktop_qt.h"

namespace trelvo {

int key_code(const QKeyEvent& event) {
  const int first = Qt::Key_F1;
  constexpr int first_code = 112;
  if (event.key() >= first && event.key() <= Qt::Key_F12) return first_code + event.key() - first;
  return 0;
}

int character_code(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return key_enter;
  if (event.key() == Qt::Key_Escape) return key_escape;
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return 0;
  const std::string text = event.text().toStdString();
  if (text.empty()) return 0;
  return static_cast<unsigned char>(to_code_page(text).front());
}

TextEntry::TextEntry(DesktopQt& desktop, TextBox& box, QWidget* parent)
    : QLineEdit(parent), desktop_(desktop), box_(box) {}

void TextEntry::keyPressEvent(QKeyEvent* event) {
  if (const int code = key_code(*event); code != 0 && box_.KeyDown) {
    desktop_.run([&] { box_.KeyDown(code); });
    if (code == key_f9) return;
  }
  const int code = character_code(*event);
  int changed = code;
  if (code != 0 && box_.KeyPress) desktop_.run([&] { box_.KeyPress(changed); });
  // What the handler leaves of Enter and Esc goes on to the dialog, if there is one.
  if (changed == 0 && code != 0) return;
  if (changed != code) {
    insert(QString::fromStdString(from_code_page(std::string(1, static_cast<char>(changed)))));
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace trelvo
