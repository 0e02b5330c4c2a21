#include "script/keyboard.h"

#include <algorithm>

#include "app/app.h"
#include "platform/text.h"
#include "report/caratteri.h"
#include "script/failure.h"
#include "script/names.h"

namespace trelvo {

namespace {

constexpr int key_backspace = 8;
constexpr int key_tab = 9;
constexpr int key_space = 32;

int code_of(const std::string& character) { return static_cast<unsigned char>(to_code_page(character).front()); }

std::string character_of(int code) { return from_code_page(std::string(1, static_cast<char>(code))); }

// Puts a text in the place of the selected part.
void replace_selection(TextBox& box, std::size_t begin, std::size_t count, const std::string& text) {
  const std::string whole = box.Text;
  const std::size_t length = text_length(whole);
  const std::size_t end = std::min(begin + count, length);
  box.SelStart = static_cast<int>(begin + text_length(text));
  box.SelLength = 0;
  box.Text = text_left(whole, begin) + text + text_right(whole, length - end);
}

void edit(TextBox& box, int code, const std::string& character) {
  if (box.Locked) return;
  const std::size_t length = text_length(box.Text.get());
  const std::size_t begin = std::min(static_cast<std::size_t>(std::max(box.SelStart.get(), 0)), length);
  const auto count = static_cast<std::size_t>(std::max(box.SelLength.get(), 0));
  if (code == key_backspace) {
    if (count > 0) {
      replace_selection(box, begin, count, "");
    } else if (begin > 0) {
      replace_selection(box, begin - 1, 1, "");
    }
  } else if (code >= key_space) {
    replace_selection(box, begin, count, character);
  }
}

void send_character(TextBox& box, int code, const std::string& character) {
  int passed = code;
  if (box.KeyPress) box.KeyPress(passed);
  edit(box, passed, passed == code ? character : character_of(passed));
}

void send_character(RichTextBox& box, int code, const std::string& character) {
  if (code == key_backspace) {
    box.cancella_indietro();
  } else if (code == key_enter || code == key_tab || code >= key_space) {
    box.scrivi(ripulito(da_utf8(character)));
  }
}

template <class Action>
void for_each_character(const std::string& text, Action&& action) {
  for (std::size_t at = 0; at < text.size();) {
    const std::string character = text_left(std::string_view(text).substr(at), 1);
    at += character.size();
    action(character);
  }
}

[[noreturn]] void takes_no_keys(const Control& control) {
  throw ScriptFailure("\"" + name_of(control) + "\" takes no keys");
}

}  // namespace

void press_key(Session& session, Control& control, int code) {
  if (code < 0 || code > 255) throw ScriptFailure("no character " + std::to_string(code));
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    session.desktop.set_focus(box);
    evento(session.bas, [&] { send_character(*box, code, code >= key_space ? character_of(code) : std::string()); });
  } else if (auto* report = dynamic_cast<RichTextBox*>(&control)) {
    session.desktop.set_focus(report);
    evento(session.bas, [&] { send_character(*report, code, character_of(code)); });
  } else if (dynamic_cast<Button*>(&control) != nullptr || dynamic_cast<OptionButton*>(&control) != nullptr) {
    if (code == key_enter || code == key_space) click_control(session, control);
  } else {
    takes_no_keys(control);
  }
}

void press_key_down(Session& session, Control& control, int code) {
  auto* box = dynamic_cast<TextBox*>(&control);
  if (box == nullptr) takes_no_keys(control);
  session.desktop.set_focus(box);
  if (box->KeyDown) evento(session.bas, [&] { box->KeyDown(code); });
}

void type_text(Session& session, TextBox& box, const std::string& text) {
  session.desktop.set_focus(&box);
  if (!box.Locked) {
    evento(session.bas, [&] {
      box.SelStart = 0;
      box.SelLength = 0;
      box.Text = std::string();
    });
  }
  for_each_character(text, [&](const std::string& character) {
    evento(session.bas, [&] { send_character(box, code_of(character), character); });
  });
}

void type_text(Session& session, RichTextBox& box, const std::string& text) {
  session.desktop.set_focus(&box);
  evento(session.bas, [&] { box.Text = std::string(); });
  for_each_character(text, [&](const std::string& character) {
    const int code = character == "\n" ? key_enter : code_of(character);
    evento(session.bas, [&] { send_character(box, code, character); });
  });
}

void click_control(Session& session, Control& control) {
  auto* option = dynamic_cast<OptionButton*>(&control);
  auto* check = dynamic_cast<CheckBox*>(&control);
  if (option != nullptr || check != nullptr || dynamic_cast<Button*>(&control) != nullptr) {
    session.desktop.set_focus(&control);
  }
  evento(session.bas, [&] {
    if (check != nullptr) {
      check->Value = check->Value == 0 ? 1 : 0;
      return;
    }
    if (option != nullptr) option->Value = true;
    if (control.Click) control.Click();
  });
}

}  // namespace trelvo
