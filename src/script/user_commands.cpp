#include <cmath>
#include <filesystem>

#include "app/app.h"
#include "script/commands.h"
#include "script/failure.h"
#include "script/keyboard.h"
#include "script/names.h"

namespace trelvo {

namespace {

constexpr int left_button = 1;
constexpr int right_button = 2;
constexpr double twips_per_pixel = 15;

struct Place {
  float x;
  float y;
};

Place logical(const Arguments& a) { return {static_cast<float>(a.number(0)), static_cast<float>(a.number(1))}; }

Place world(const Session& session, const Arguments& a) {
  const double scale = session.document().vista.rapscala;
  return {static_cast<float>(a.number(0) * scale), static_cast<float>(a.number(1) * scale)};
}

void move_to(Session& session, Place place) {
  distipo& doc = session.document();
  evento(session.bas, [&] { Form_MouseMove(doc, place.x, place.y); });
}

void click_at(Session& session, Place place, int button) {
  move_to(session, place);
  distipo& doc = session.document();
  evento(session.bas, [&] { Form_MouseDown(doc, button, place.x, place.y); });
}

// An item that holds others only opens, after the menu that it lies in. False if it is disabled.
bool open_menu(MenuItem& menu) {
  if (menu.parent != nullptr && !open_menu(*menu.parent)) return false;
  if (!menu.Enabled || !menu.Visible) return false;
  if (menu.Click) menu.Click();
  return true;
}

void choose_menu(Session& session, const Arguments& a) {
  const int index = a.count() == 2 ? a.integer(1) : no_index;
  MenuItem& item = menu_named(session, a.text(0), index);
  bool refused = false;
  evento(session.bas, [&] { refused = !(item.items.empty() ? scegli(item) : open_menu(item)); });
  if (!refused) return;
  session.output.line("disabled menu " + a.text(0) + (index == no_index ? "" : "(" + std::to_string(index) + ")"));
}

void press_tool(Session& session, const Arguments& a) {
  const int button = a.integer(1);
  auto& bar = dynamic_cast<Toolbar&>(control_named(session, "frmMain.Toolbar1(" + std::to_string(a.integer(0)) + ")"));
  const bool there = button >= 1 && static_cast<std::size_t>(button) <= bar.buttons.size() &&
                     !bar.buttons[static_cast<std::size_t>(button) - 1].tip.empty();
  if (!there) throw ScriptFailure("no button " + std::to_string(button) + " in \"" + name_of(bar) + "\"");
  if (bar.ButtonClick) evento(session.bas, [&] { bar.ButtonClick(button); });
}

void click_label(Session& session, const Arguments& a) {
  click_control(session, control_named(session, "frmMain.Label" + std::to_string(a.integer(0))));
}

void resize(Session& session, const Arguments& a) {
  distipo& doc = session.document();
  for (std::size_t i = 0; i < 2; ++i) {
    if (a.number(i) <= 0 || std::fmod(a.number(i), twips_per_pixel) != 0) {
      throw ScriptFailure("a size is a multiple of 15, not " + a.text(i));
    }
  }
  const Place size = logical(a);
  evento(session.bas, [&] { ridimensiona(doc, size.x, size.y); });
}

void move_over_strip(Session& session, const Arguments& a) {
  distipo& doc = session.document();
  const int strip = a.integer(0);
  if (strip != 3 && strip != 4) throw ScriptFailure("no strip " + a.text(0));
  evento(session.bas, [&] { strip == 3 ? Picture3_MouseMove(doc) : Picture4_MouseMove(doc); });
}

void key(Session& session, const Arguments& a) {
  distipo& doc = session.document();
  const int code = a.integer(0);
  evento(session.bas, [&] { Form_KeyPress(doc, code); });
}

void key_down(Session& session, const Arguments& a) {
  if (a.count() == 2) {
    press_key_down(session, control_named(session, a.text(0)), a.integer(1));
    return;
  }
  distipo& doc = session.document();
  const int code = a.integer(0);
  evento(session.bas, [&] { Form_KeyDown(doc, code); });
}

void press(Session& session, const Arguments& a) {
  Control& control = control_named(session, a.text(0));
  if (control.Enabled && control.Visible) {
    click_control(session, control);
  } else {
    session.output.line("disabled " + a.text(0));
  }
}

void move_over_control(Session& session, const Arguments& a) {
  auto* box = dynamic_cast<PictureBox*>(&control_named(session, a.text(0)));
  if (box == nullptr) throw ScriptFailure("\"" + a.text(0) + "\" is no picture box");
  const auto x = static_cast<float>(a.number(1));
  const auto y = static_cast<float>(a.number(2));
  evento(session.bas, [&] {
    if (box->SurfaceMouseMove) box->SurfaceMouseMove(x, y);
    if (box->MouseMove) box->MouseMove();
  });
}

void type(Session& session, const Arguments& a) {
  if (auto* report = dynamic_cast<RichTextBox*>(&control_named(session, a.text(0)))) {
    type_text(session, *report, a.text(1));
    return;
  }
  auto* box = dynamic_cast<TextBox*>(&control_named(session, a.text(0)));
  if (box == nullptr) throw ScriptFailure("\"" + a.text(0) + "\" is no text box");
  type_text(session, *box, a.text(1));
}

// A scroll bar cannot be dragged past its ends.
std::string within_range(const ScrollBar& bar, const std::string& value) {
  double number = 0;
  read_number(value, number);
  const double low = std::min(bar.Min.get(), bar.Max.get());
  const double high = std::max(bar.Min.get(), bar.Max.get());
  return number < low    ? std::to_string(static_cast<int>(low))
         : number > high ? std::to_string(static_cast<int>(high))
                         : value;
}

void set(Session& session, const Arguments& a) {
  const FoundProperty found = property_named(session, a.text(0));
  std::string value = a.text(1);
  double number = 0;
  if (!found.property.holds_text() && !read_number(value, number))
    throw ScriptFailure("\"" + value + "\" is no number");

  const bool is_value = found.property.name() == std::string_view("Value");
  if (is_value && number != 0 && dynamic_cast<OptionButton*>(found.control) != nullptr) {
    click_control(session, *found.control);
    return;
  }
  if (const auto* bar = dynamic_cast<ScrollBar*>(found.control); is_value && bar != nullptr) {
    value = within_range(*bar, value);
  }
  if (const auto* list = dynamic_cast<ListBox*>(found.control);
      list != nullptr && &found.property == &list->ListIndex && (number < -1 || number >= list->ListCount)) {
    throw ScriptFailure("no row " + value);
  }
  evento(session.bas, [&] { found.property.assign(value); });
}

void activate(Session& session, const Arguments& a) {
  const int number = a.integer(0);
  const auto& windows = session.bas.finestredocumenti;
  if (number < 1 || static_cast<std::size_t>(number) >= windows.size() || !windows[static_cast<std::size_t>(number)]) {
    throw ScriptFailure("no document " + a.text(0));
  }
  distipo& doc = *windows[static_cast<std::size_t>(number)];
  if (session.bas.attivo() != &doc) evento(session.bas, [&] { attivata(session.bas, doc); });
}

videoscritt& new_report(Session& session) {
  const std::filesystem::path settings = session.bas.fileini;
  session.relazione = std::make_unique<videoscritt>(session.desktop, settings.parent_path().string());
  videoscritt& made = *session.relazione;
  made.Visible.on_change([&session, &made] {
    const Control* focus = session.desktop.focus();
    if (!made.Visible && focus != nullptr && &focus->form == &made) session.desktop.set_focus(nullptr);
  });
  return made;
}

// Names count from the folder that the script runs in, which the report leaves for the program's own.
void report(Session& session, const Arguments& a) {
  std::error_code ignored;
  const std::string file = a.count() == 1 ? std::filesystem::absolute(a.text(0), ignored).string() : std::string();
  videoscritt& shown = session.relazione ? *session.relazione : new_report(session);
  evento(session.bas, [&] { apri_relazione(shown, file); });
}

}  // namespace

void add_user_commands(ScriptCommands& commands) {
  commands["menu"] = {1, 2, choose_menu};
  commands["toolbar"] = {2, 2, press_tool};
  commands["label"] = {1, 1, click_label};
  commands["size"] = {2, 2, resize};

  commands["move"] = {2, 2, [](Session& s, const Arguments& a) { move_to(s, world(s, a)); }};
  commands["left"] = {2, 2, [](Session& s, const Arguments& a) { click_at(s, world(s, a), left_button); }};
  commands["right"] = {2, 2, [](Session& s, const Arguments& a) { click_at(s, world(s, a), right_button); }};
  commands["movelog"] = {2, 2, [](Session& s, const Arguments& a) { move_to(s, logical(a)); }};
  commands["leftlog"] = {2, 2, [](Session& s, const Arguments& a) { click_at(s, logical(a), left_button); }};
  commands["rightlog"] = {2, 2, [](Session& s, const Arguments& a) { click_at(s, logical(a), right_button); }};
  commands["movestrip"] = {1, 1, move_over_strip};
  commands["moveon"] = {3, 3, move_over_control};
  commands["leave"] = {0, 0, [](Session& s, const Arguments&) { evento(s.bas, [&] { MDIForm_MouseMove(s.bas); }); }};

  commands["key"] = {1, 1, key};
  commands["keydown"] = {1, 2, key_down};
  commands["keypress"] = {
      2, 2, [](Session& s, const Arguments& a) { press_key(s, control_named(s, a.text(0)), a.integer(1)); }};
  commands["press"] = {1, 1, press};
  commands["type"] = {2, 2, type};
  commands["set"] = {2, 2, set};

  commands["report"] = {0, 1, report};
  commands["activate"] = {1, 1, activate};
  commands["close"] = {0, 0, [](Session& s, const Arguments&) {
                         distipo& doc = s.document();
                         evento(s.bas, [&] { chiudi(doc); });
                       }};
  commands["quit"] = {0, 0, [](Session& s, const Arguments&) { evento(s.bas, [&] { chiudi_frame(s.bas); }); }};
}

}  // namespace trelvo
