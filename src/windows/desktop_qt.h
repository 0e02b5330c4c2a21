// The desktop that the program runs on, made of Qt 6 windows and dialogs.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <unordered_map>

#include "document/trelvobas.h"
#include "platform/desktop.h"
#include "platform/qt/font_service_qt.h"
#include "windows/canvas.h"

namespace trelvo {

class FrameWindow;
class PrinterQt;

class DesktopQt : public Desktop {
 public:
  DesktopQt();
  ~DesktopQt() override;

  // The program that runs on it. Once, before anything is shown.
  void attach(trelvobas& bas) { bas_ = &bas; }
  trelvobas& bas() { return *bas_; }

  // A window that stands in the place of the frame; dialogs open over it.
  void set_main_window(QWidget* window) { main_window_ = window; }
  // Null while there is none.
  FrameWindow* frame() const { return frame_.get(); }
  // Takes the frame away, before the program it shows.
  void hide_frame();

  // Shows what the running event changed so far.
  void refresh();
  // A dialog's canvas is looked at after each event, as the documents' are.
  void keep_fresh(Canvas* canvas) { canvases_.emplace_back(canvas); }
  // The screen's pointer as the program wants it.
  void show_pointer();

  // Runs one event of the user, and shows what it changed.
  void run(const std::function<void()>& action);
  std::function<void()> after_event;

  // Where a control's widget is.
  void place_control(Control& control, QWidget* widget) { widgets_[&control] = widget; }
  // The user brought the keyboard to a control.
  void focus_came_to(Control& control) { Desktop::set_focus(&control); }
  // A control that goes away.
  void forget(const Form& form);

  void set_focus(Control* control) override;
  FontService& fonts() override { return fonts_; }
  RegionalFormat regional() const override;
  float timer() const override;
  float screen_width() const override;
  int message_box(const std::string& text, Buttons buttons) override;
  void beep() override;
  void runtime_error(int number, const std::string& text) override;
  bool show_open(CommonDialog& dialog) override;
  bool show_save(CommonDialog& dialog) override;
  bool show_font(FontDialog& dialog) override;
  bool show_color(Color& color) override;
  bool show_color_titled(Color& color, const std::string& title) override;
  std::string clipboard_text() override;
  void set_clipboard_text(const std::string& text) override;
  Printer& printer() override;
  bool show_printer() override;
  void show_modal(Form& form) override;
  void process_events() override;
  // In the midst of an event that is not to be disturbed.
  bool busy() const { return busy_; }
  ClientSize create_window(Form& document) override;
  void show_window(Form& document) override;
  void destroy_window(Form& document) override;
  void activate_window(Form& document) override;
  void show_frame(Form& frame) override;

 private:
  QWidget* parent() const;

  trelvobas* bas_ = nullptr;
  bool busy_ = false;
  FontServiceQt fonts_;
  std::unique_ptr<PrinterQt> printer_;  // looked for when first asked for
  std::unique_ptr<FrameWindow> frame_;
  QPointer<QWidget> main_window_;
  std::unordered_map<const Control*, QPointer<QWidget>> widgets_;
  std::vector<QPointer<Canvas>> canvases_;
};

}  // namespace trelvo
