// A desktop without a screen, for tests and benchmarks: answers given ahead, everything shown is kept.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/text.h"

namespace trelvo {

// Every character fills a cell of half the height of the letters. No letter is higher than a screen.
class FakeFonts : public FontService {
 public:
  Size extent(const Font& font, const std::string& text) override {
    const int height = std::max(1, std::abs(std::clamp(font.height, -highest, highest)));
    return {static_cast<int>(text_length(text)) * std::max(1, height / 2), height};
  }
  GlyphMask mask(const Font& font, const std::string& text) override {
    const Size cell = extent(font, text);
    const auto pixels = static_cast<std::size_t>(cell.width) * static_cast<std::size_t>(cell.height);
    return {0, 0, cell.width, cell.height, std::vector<std::uint8_t>(pixels, 255)};
  }

 private:
  static constexpr std::int32_t highest = 400;
};

class FakeDesktop : public Desktop {
 public:
  FontService& fonts() override { return fonts_; }
  RegionalFormat regional() const override { return regional_format; }
  float timer() const override { return seconds; }
  float screen_width() const override { return 19200; }

  int message_box(const std::string& text, Buttons buttons) override {
    messages.push_back(text);
    if (answers.empty()) return buttons == Buttons::ok ? answer_ok : answer_cancel;
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void beep() override { ++beeps; }
  void runtime_error(int number, const std::string& text) override {
    errors.push_back(number);
    messages.push_back(text);
  }
  bool show_open(CommonDialog& dialog) override { return choose(dialog); }
  bool show_save(CommonDialog& dialog) override { return choose(dialog); }
  bool show_font(FontDialog& /*dialog*/) override { return false; }
  bool show_color(Color& color) override {
    if (colors.empty()) return false;
    color = colors.front();
    colors.pop_front();
    return true;
  }
  std::string clipboard_text() override { return clipboard; }
  void set_clipboard_text(const std::string& text) override { clipboard = text; }
  Printer& printer() override { throw RuntimeError(error_printer); }
  bool show_printer() override { return false; }
  void show_modal(Form& form) override {
    form.load();
    form.Visible = true;
    if (form.Shown) run_event(*this, form.Shown);
    if (modal) modal(form);
    if (form.loaded()) form.unload();
  }

  ClientSize create_window(Form& /*document*/) override { return client; }
  void show_window(Form& /*document*/) override {}
  void destroy_window(Form& /*document*/) override {}
  void activate_window(Form& /*document*/) override {}
  void show_frame(Form& /*frame*/) override {}

  RegionalFormat regional_format;
  float seconds = 36000;
  ClientSize client{15000, 9000};
  std::deque<int> answers;
  std::deque<Color> colors;  // none left: cancelled
  std::string clipboard;
  std::deque<std::string> files;  // an empty name cancels
  std::vector<std::string> messages;
  std::vector<int> errors;
  int beeps = 0;
  std::function<void(Form&)> modal;  // runs while a form is shown

 private:
  bool choose(CommonDialog& dialog) {
    if (files.empty()) return false;
    const std::string name = files.front();
    files.pop_front();
    if (name.empty()) return false;
    dialog.FileName = name;
    return true;
  }

  FakeFonts fonts_;
};

}  // namespace trelvo
