// All that the program asks of a desktop, besides its forms and surfaces.
#pragma once

#include <new>
#include <string>

#include "platform/controls.h"
#include "platform/graphics.h"
#include "platform/numbers.h"
#include "platform/printer.h"

namespace trelvo {

enum class Buttons { ok, yes_no_cancel };

constexpr int answer_ok = 1;
constexpr int answer_cancel = 2;
constexpr int answer_yes = 6;
constexpr int answer_no = 7;

// What a file dialog is shown with; a dialog that is confirmed changes FileName, a cancelled one leaves it.
struct CommonDialog {
  std::string Filter;  // "Name|*.ext|Name|*.ext", as the platform's dialogs take it
  int FilterIndex = 1;
  std::string FileName;
};

// A font dialog: what it opens with, and what the user chose. The size is in points.
struct FontDialog {
  std::string FontName;
  float FontSize = 0;
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  Color color = 0;
  bool asks_color = true;  // whether the user can choose it
};

class Desktop : public PropertyOwner {
 public:
  // The screen's pointer: it stands over that of the window under it while it is not 0.
  Property<int> MousePointer{*this, "MousePointer", pointer_default};
  // The control that has the keyboard.
  Control* focus() const { return focus_; }
  virtual void set_focus(Control* control) { focus_ = control; }

  virtual FontService& fonts() = 0;
  virtual RegionalFormat regional() const = 0;
  // Seconds since midnight.
  virtual float timer() const = 0;
  virtual float screen_width() const = 0;  // twips
  static constexpr float TwipsPerPixelY = 15;

  virtual int message_box(const std::string& text, Buttons buttons) = 0;
  virtual void beep() = 0;
  virtual void runtime_error(int number, const std::string& text) = 0;
  // False if the user cancelled.
  virtual bool show_open(CommonDialog& dialog) = 0;
  virtual bool show_save(CommonDialog& dialog) = 0;
  virtual bool show_font(FontDialog& dialog) = 0;
  virtual bool show_color(Color& color) = 0;
  // The same under a title of its own.
  virtual bool show_color_titled(Color& color, const std::string& /*title*/) { return show_color(color); }

  // Plain text; empty if the clipboard holds none.
  virtual std::string clipboard_text() = 0;
  virtual void set_clipboard_text(const std::string& text) = 0;

  // The printer in use. `show_printer` lets the user choose another, for the run; false if cancelled.
  virtual Printer& printer() = 0;
  virtual bool show_printer() = 0;

  // Loads the form, shows it, runs its Shown as an event, and returns when it is hidden or unloaded.
  virtual void show_modal(Form& form) = 0;
  // In the midst of a long event: paints what has changed and lets windows be moved, without input to the program.
  virtual void process_events() {}

  // The window of a document: made hidden, at its client size in twips; then shown; then taken away.
  struct ClientSize {
    float width;
    float height;
  };
  virtual ClientSize create_window(Form& document) = 0;
  virtual void show_window(Form& document) = 0;
  virtual void destroy_window(Form& document) = 0;
  virtual void activate_window(Form& document) = 0;
  // The frame's own window.
  virtual void show_frame(Form& frame) = 0;

 private:
  Control* focus_ = nullptr;
};

// Puts a pointer back when it goes.
class PointerGuard {
 public:
  PointerGuard(Desktop& desktop, int pointer) : desktop_(desktop) { desktop_.MousePointer = pointer; }
  PointerGuard(const PointerGuard&) = delete;
  PointerGuard& operator=(const PointerGuard&) = delete;
  ~PointerGuard() { desktop_.MousePointer = pointer_default; }

 private:
  Desktop& desktop_;
};

inline void tell_error(Desktop& desktop, int number, const std::string& text) {
  try {
    desktop.MousePointer = pointer_default;
    desktop.runtime_error(number, text);
  } catch (const std::bad_alloc&) {  // not even for the words
  }
}

// Runs one event of the user. What goes wrong in it is told, and the program goes on. False if it failed.
template <class Action>
bool run_event(Desktop& desktop, Action&& action) {
  try {
    action();
    return true;
  } catch (const RuntimeError& error) {
    tell_error(desktop, error.number(), error.text());
  } catch (const std::bad_alloc&) {
    tell_error(desktop, error_no_memory, RuntimeError(error_no_memory).text());
  }
  return false;
}

}  // namespace trelvo
