// A desktop without a window system. Its user is a script: answers are given ahead, and what a user would see or hear
// is printed.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "document/distipo.h"
#include "platform/desktop.h"
#include "script/output.h"
#include "script/printer_script.h"

namespace trelvo {

// Without a colour of its own it keeps the one that the dialog was shown with.
struct FontAnswer {
  FontDialog font;
  bool colored = false;
};

// Used up in order. No value stands for a cancelled dialog.
struct Answers {
  std::deque<int> boxes;
  std::deque<std::optional<std::string>> files;
  std::deque<std::optional<Color>> colors;
  std::deque<std::optional<FontAnswer>> fonts;
  std::deque<std::string> print_files;
};

class DesktopScript : public Desktop {
 public:
  DesktopScript(Output& output, FontService& fonts, PdfMaker make_pdf = {})
      : output_(output), fonts_(fonts), printer_(*this, std::move(make_pdf)) {}

  Answers answers;
  // Seconds since midnight.
  double clock = 36000;
  RegionalFormat format{",", "."};
  std::optional<Paper> paper = Paper{};

  // Acts as the user of a modal form, for as long as it is open or there is something to do.
  std::function<void(Form&)> use_dialog;
  // Hears of each document window as it is made.
  std::function<void(distipo&)> document_made;

  // Modal forms on the screen, the front one last.
  const std::vector<Form*>& dialogs() const { return dialogs_; }

  FontService& fonts() override { return fonts_; }
  RegionalFormat regional() const override { return format; }
  float timer() const override { return static_cast<float>(clock); }
  float screen_width() const override { return 28800; }

  int message_box(const std::string& text, Buttons buttons) override;
  void beep() override { output_.line("beep"); }
  void runtime_error(int number, const std::string& text) override;
  bool show_open(CommonDialog& dialog) override { return file_dialog("open", dialog); }
  bool show_save(CommonDialog& dialog) override { return file_dialog("save", dialog); }
  bool show_font(FontDialog& dialog) override;
  bool show_color(Color& color) override;
  std::string clipboard_text() override { return clipboard_; }
  void set_clipboard_text(const std::string& text) override { clipboard_ = text; }
  Printer& printer() override { return printer_; }
  // The script chooses the paper.
  bool show_printer() override;
  void show_modal(Form& form) override;

  ClientSize create_window(Form& document) override;
  void show_window(Form& document) override;
  void destroy_window(Form& document) override;
  void activate_window(Form& document) override;
  void show_frame(Form& frame) override { frame.Visible = true; }

 private:
  bool file_dialog(const char* kind, CommonDialog& dialog);

  Output& output_;
  FontService& fonts_;
  std::vector<Form*> dialogs_;
  std::string clipboard_;
  PrinterScript printer_;
};

}  // namespace trelvo
