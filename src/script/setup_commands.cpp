#include <array>
#include <cmath>

#include "script/commands.h"
#include "script/failure.h"

namespace trelvo {

namespace {

constexpr double seconds_a_day = 86400;

struct Choice {
  std::string_view name;
  int answer;
};
constexpr std::array choices{Choice{"yes", answer_yes}, Choice{"no", answer_no}, Choice{"cancel", answer_cancel},
                             Choice{"ok", answer_ok}};

struct Locale {
  std::string_view name;
  const char* decimal;
  const char* group;
};
constexpr std::array locales{Locale{"it_IT", ",", "."}, Locale{"en_US", ".", ","}, Locale{"C", ".", ","}};

template <class Rows>
const auto& row_named(const Rows& rows, const std::string& name, const char* what) {
  for (const auto& row : rows) {
    if (row.name == name) return row;
  }
  throw ScriptFailure(std::string("no ") + what + " \"" + name + "\"");
}

Color color_from(const Arguments& a, std::size_t first) {
  std::array<int, 3> parts{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    parts[i] = a.integer(first + i);
    if (parts[i] < 0 || parts[i] > 255) throw ScriptFailure("a part of a colour is 0 to 255, not " + a.text(first + i));
  }
  return rgb(parts[0], parts[1], parts[2]);
}

void locale(Session& session, const Arguments& a) {
  const Locale& wanted = row_named(locales, a.text(0), "locale");
  session.desktop.format = {wanted.decimal, wanted.group};
}

void move_clock(Session& session, const Arguments& a) {
  if (a.number(0) < 0) throw ScriptFailure("time does not run back");
  session.desktop.clock = std::fmod(session.desktop.clock + a.number(0), seconds_a_day);
}

void set_clock(Session& session, const Arguments& a) {
  if (a.number(0) < 0 || a.number(0) >= seconds_a_day) throw ScriptFailure("no time of day " + a.text(0));
  session.desktop.clock = a.number(0);
}

double length(const Arguments& a, std::size_t i) {
  if (a.number(i) <= 0) throw ScriptFailure("no length " + a.text(i));
  return a.number(i);
}

void paper(Session& session, const Arguments& a) {
  if (a.count() == 1) {
    if (!a.is(0, "none")) throw ScriptFailure("no paper \"" + a.text(0) + "\"");
    session.desktop.paper.reset();
    return;
  }
  if (a.count() == 3) throw ScriptFailure("a sheet has a width and a height");
  const Paper area{length(a, 0), length(a, 1), length(a, a.count() - 2), length(a, a.count() - 1)};
  if (area.sheet_width < area.width || area.sheet_height < area.height) {
    throw ScriptFailure("the sheet is smaller than its printable area");
  }
  session.desktop.paper = area;
}

void answer(Session& session, const Arguments& a) {
  session.desktop.answers.boxes.push_back(row_named(choices, a.text(0), "answer").answer);
}

void file(Session& session, const Arguments& a) {
  auto& files = session.desktop.answers.files;
  a.is(0, "cancel") ? files.emplace_back(std::nullopt) : files.emplace_back(a.text(0));
}

void color(Session& session, const Arguments& a) {
  auto& colors = session.desktop.answers.colors;
  if (a.count() == 1 && a.is(0, "cancel")) {
    colors.emplace_back(std::nullopt);
  } else if (a.count() == 3) {
    colors.emplace_back(color_from(a, 0));
  } else {
    throw ScriptFailure("a colour has three parts");
  }
}

FontAnswer font_from(const Arguments& a) {
  FontAnswer answer;
  answer.font.FontName = a.text(0);
  answer.font.FontSize = static_cast<float>(a.number(1));
  std::size_t i = 2;
  for (; i < a.count(); ++i) {
    if (a.is(i, "bold")) {
      answer.font.FontBold = true;
    } else if (a.is(i, "italic")) {
      answer.font.FontItalic = true;
    } else if (a.is(i, "underline")) {
      answer.font.FontUnderline = true;
    } else if (a.is(i, "strikeout")) {
      answer.font.FontStrikethru = true;
    } else {
      break;
    }
  }
  if (i == a.count()) return answer;
  if (a.count() - i != 3) throw ScriptFailure("unknown font attribute \"" + a.text(i) + "\"");
  answer.font.color = color_from(a, i);
  answer.colored = true;
  return answer;
}

void font(Session& session, const Arguments& a) {
  auto& fonts = session.desktop.answers.fonts;
  if (a.count() == 1) {
    if (!a.is(0, "cancel")) throw ScriptFailure("a font has a name and a size");
    fonts.emplace_back(std::nullopt);
  } else {
    fonts.emplace_back(font_from(a));
  }
}

}  // namespace

void add_setup_commands(ScriptCommands& commands) {
  commands["wait"] = {1, 1, move_clock};
  commands["time"] = {1, 1, set_clock};
  commands["locale"] = {1, 1, locale};
  commands["paper"] = {1, 4, paper};
  commands["printto"] = {1, 1,
                         [](Session& s, const Arguments& a) { s.desktop.answers.print_files.push_back(a.text(0)); }};
  commands["answer"] = {1, 1, answer};
  commands["file"] = {1, 1, file};
  commands["color"] = {1, 3, color};
  commands["font"] = {1, 9, font};
}

}  // namespace trelvo
