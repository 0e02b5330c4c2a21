#include "script/desktop_script.h"

#include <algorithm>
#include <cmath>

#include "app/app.h"

namespace trelvo {

namespace {

template <class Answer>
std::optional<Answer> taken(std::deque<Answer>& waiting) {
  if (waiting.empty()) return std::nullopt;
  Answer answer = std::move(waiting.front());
  waiting.pop_front();
  return answer;
}

const char* answer_name(int answer) {
  switch (answer) {
    case answer_ok:
      return "ok";
    case answer_yes:
      return "yes";
    case answer_no:
      return "no";
    default:
      return "cancel";
  }
}

std::string font_text(const FontDialog& font) {
  std::string text = trelvo::quoted(font.FontName) + ' ' + shortest_text(font.FontSize);
  if (font.FontBold) text += " bold";
  if (font.FontItalic) text += " italic";
  if (font.FontUnderline) text += " underline";
  if (font.FontStrikethru) text += " strikeout";
  return text;
}

std::string color_parts(Color color) {
  return ' ' + std::to_string(color & 0xFF) + ' ' + std::to_string((color >> 8) & 0xFF) + ' ' +
         std::to_string((color >> 16) & 0xFF);
}

std::string window_name(const Form& document) {
  return document.name + ' ' + std::to_string(static_cast<const distipo&>(document).numero);
}

// Prints the progress bars of a form while it is open.
class ProgressWatch {
 public:
  ProgressWatch(Output& output, Form& form) {
    for (Control* control : form.controls) {
      auto* bar = dynamic_cast<ProgressBar*>(control);
      if (bar == nullptr) continue;
      int tenth = tenths(*bar);
      listenings_.push_back(bar->Value.listen([&output, &form, bar, tenth]() mutable {
        const int reached = tenths(*bar);
        if (reached < tenth) tenth = reached;
        while (tenth < reached) output.line("progress " + form.name + ' ' + std::to_string(++tenth * 10));
      }));
    }
  }

 private:
  static int tenths(const ProgressBar& bar) {
    const float range = bar.Max;
    return range > 0 ? static_cast<int>(std::floor(std::clamp(bar.Value / range, 0.0F, 1.0F) * 10)) : 0;
  }
  std::vector<Listening> listenings_;
};

}  // namespace

int DesktopScript::message_box(const std::string& text, Buttons buttons) {
  const bool question = buttons == Buttons::yes_no_cancel;
  const std::vector<int> offered =
      question ? std::vector<int>{answer_yes, answer_no, answer_cancel} : std::vector<int>{answer_ok};
  // A button that the box lacks cannot be pressed: the box is closed, as when no answer waits.
  int answer = taken(answers.boxes).value_or(answer_cancel);
  if (std::find(offered.begin(), offered.end(), answer) == offered.end()) {
    answer = question ? answer_cancel : answer_ok;
  }
  output_.line("msgbox " + trelvo::quoted(text) + (question ? " yesnocancel" : " ok") + " -> " + answer_name(answer));
  return answer;
}

void DesktopScript::runtime_error(int number, const std::string& text) {
  output_.line("error " + std::to_string(number) + ' ' + trelvo::quoted(text));
}

bool DesktopScript::file_dialog(const char* kind, CommonDialog& dialog) {
  const std::optional<std::string> path = taken(answers.files).value_or(std::nullopt);
  output_.line(std::string("filedialog ") + kind + " filter=" + trelvo::quoted(dialog.Filter) +
               " name=" + trelvo::quoted(dialog.FileName) + " -> " + (path ? trelvo::quoted(*path) : "cancel"));
  if (path) dialog.FileName = *path;
  return path.has_value();
}

bool DesktopScript::show_font(FontDialog& dialog) {
  const std::optional<FontAnswer> answer = taken(answers.fonts).value_or(std::nullopt);
  const std::string shown = "fontdialog " + font_text(dialog) + " -> ";
  if (!answer) {
    output_.line(shown + "cancel");
    return false;
  }
  output_.line(shown + font_text(answer->font) + (answer->colored ? color_parts(answer->font.color) : ""));
  const Color color = dialog.color;
  dialog = answer->font;
  if (!answer->colored) dialog.color = color;
  return true;
}

bool DesktopScript::show_color(Color& color) {
  const std::optional<Color> answer = taken(answers.colors).value_or(std::nullopt);
  output_.line("colordialog " + std::to_string(color) + " -> " + (answer ? std::to_string(*answer) : "cancel"));
  if (answer) color = *answer;
  return answer.has_value();
}

bool DesktopScript::show_printer() {
  if (!paper) throw RuntimeError(error_printer);
  return true;
}

void DesktopScript::show_modal(Form& form) {
  form.load();
  output_.line("show " + form.name);
  form.Visible = true;
  Control* const had_keyboard = focus();
  set_focus(nullptr);
  dialogs_.push_back(&form);
  {
    const ProgressWatch watch(output_, form);
    if (form.Shown) run_event(*this, form.Shown);
    use_dialog(form);
    // A form that refuses to be closed has nobody left to change its mind.
    if (form.Visible && !form.close()) form.unload();
  }
  dialogs_.pop_back();
  set_focus(had_keyboard);
  output_.line("unload " + form.name);
}

DesktopScript::ClientSize DesktopScript::create_window(Form& document) {
  document_made(static_cast<distipo&>(document));
  return {15000, 9000};
}

void DesktopScript::show_window(Form& document) {
  document.Visible = true;
  output_.line("show " + window_name(document));
}

void DesktopScript::destroy_window(Form& document) {
  if (focus() != nullptr && &focus()->form == &document) set_focus(nullptr);
  output_.line("unload " + window_name(document));
}

void DesktopScript::activate_window(Form& document) {
  auto& doc = static_cast<distipo&>(document);
  attivata(doc.bas, doc);
}

}  // namespace trelvo
