// What a user without a plan does in a dialog.
#include "model/oggetti.h"
#include "random_user/random_lines.h"

namespace trelvo {

RandomLines::Lines RandomLines::dialog_lines(const std::string& form) {
  Lines lines = form == "TipoLinea"        ? line_lines()
                : form == "TipoSuperficie" ? surface_lines()
                : form == "Gesttesto"      ? text_lines()
                : form == "impost"         ? settings_lines()
                                           : percent_lines();
  std::string end = "press " + form + "." + dice_.one_of({"Command1", "Command1", "Command1", "Command2"});
  if (dice_.chance(95)) lines.push_back(std::move(end));
  return lines;
}

// Vertices that the dialog lists when it is shown for what is selected now; 0 if that is not one outline.
int RandomLines::rows_of_selection(const std::string& form) const {
  const distipo& doc = *session_.bas.attivo();
  if (!confirms_) return 0;
  int selected = 0;
  int rows = 0;
  visita<superficie, Rettangolo, Linea, polilinea, testo, Arco, Cerchio>(doc.dis, [&](const auto& o) {
    if (o.stato != stato_selezionato) return;
    ++selected;
    if constexpr (requires { o.vertici; }) {
      if ((form == "TipoSuperficie") == requires { o.campitura; }) rows = o.vertic();
    }
  });
  return selected == 1 ? rows : 0;
}

void RandomLines::vertex_buttons(const std::string& form, Lines& lines) {
  const auto waits = waiting_.find(form);
  const bool next = waits == waiting_.end() || waits->second == 0;
  const int rows = next && lines.empty() ? rows_of_selection(form) : 0;
  if (rows > 0) {
    lines.push_back("set " + form + ".List1(" + dice_.one_of({"0", "1"}) + ").ListIndex " +
                    std::to_string(dice_.number(0, rows - 1)));
  }
  lines.push_back("dialog CoordVert");
  for (const std::string& line : vertex_lines()) lines.push_back(line);
  lines.push_back("end");
  lines.push_back("press " + form + "." + dice_.one_of({"Command3", "Command6", "Command7"}));
}

RandomLines::Lines RandomLines::line_lines() {
  Lines lines;
  for (int i = dice_.number(0, 3); i > 0; --i) {
    switch (dice_.number(1, 5)) {
      case 1:
        lines.push_back("press TipoLinea.picture1(" + std::to_string(dice_.number(0, 5)) + ")");
        break;
      case 2:
        lines.push_back("type TipoLinea." +
                        dice_.one_of({"Text1", "Text2", "Text3", "Text5", "Text6", "Text7", "Text8"}) + " \"" +
                        (dice_.chance(90) ? number() : typed()) + "\"");
        break;
      case 3:
        lines.push_back("color " + color());
        lines.push_back("press TipoLinea.Command4");
        break;
      default:
        vertex_buttons("TipoLinea", lines);
    }
  }
  return lines;
}

RandomLines::Lines RandomLines::surface_lines() {
  Lines lines;
  for (int i = dice_.number(0, 3); i > 0; --i) {
    switch (dice_.number(1, 6)) {
      case 1:
        lines.push_back("press TipoSuperficie.picture1(" + std::to_string(dice_.number(0, 5)) + ")");
        break;
      case 2:
        lines.push_back("type TipoSuperficie." + dice_.one_of({"Text1", "Text2", "Text3", "Text4"}) + " \"" +
                        (dice_.chance(90) ? number() : typed()) + "\"");
        break;
      case 3:
        lines.push_back("color " + color());
        lines.push_back("press TipoSuperficie." + dice_.one_of({"Command4", "Command5"}));
        break;
      case 4:
        lines.push_back("set TipoSuperficie.List2.ListIndex " + std::to_string(dice_.number(-1, 7)));
        break;
      default:
        vertex_buttons("TipoSuperficie", lines);
    }
  }
  return lines;
}

RandomLines::Lines RandomLines::text_lines() {
  Lines lines;
  const std::string long_text(static_cast<std::size_t>(dice_.number(90, 300)), 'x');
  for (int i = dice_.number(1, 4); i > 0; --i) {
    switch (dice_.number(1, 6)) {
      case 1:
        lines.push_back("press Gesttesto." + dice_.one_of({"Command3", "Command4", "Check1"}));
        break;
      case 2:
        lines.push_back("type Gesttesto." + dice_.one_of({"Text2", "Text3", "Text4"}) + " \"" + number() + "\"");
        break;
      case 3:
        lines.push_back("dialog Selcol");
        for (const std::string& line : color_lines()) lines.push_back(line);
        lines.push_back("end");
        lines.push_back("press Gesttesto.Command4");
        break;
      default:
        lines.push_back("type Gesttesto.Text1 \"" +
                        dice_.one_of({"scala 1:100", "", "  ", "perché", "€ 5", "日本", "Vari", long_text.c_str()}) +
                        "\"");
    }
  }
  return lines;
}

// The dialog stands aside while the window to print is picked: what is done then may take it away.
RandomLines::Lines RandomLines::print_lines() {
  Lines lines;
  for (int i = dice_.number(1, 4); i > 0; --i) {
    switch (dice_.number(1, 5)) {
      case 1:
        lines.push_back("type Geststamp." + dice_.one_of({"Text1", "Text2", "Text3"}) + " \"" + number() + "\"");
        break;
      case 2:
        lines.push_back("dialog Spesslin");
        lines.push_back("type Spesslin.Text1(" + std::to_string(dice_.number(0, 15)) + ") \"" + number() + "\"");
        lines.push_back("press Spesslin." + dice_.one_of({"Command1", "Command2"}));
        lines.push_back("end");
        lines.push_back("press Geststamp.Command5");
        break;
      default:
        lines.push_back("press Geststamp.Command4");
        lines.push_back("left " + coordinate() + " " + coordinate());
        lines.push_back(dice_.one_of({"left 30 20", "right 1 1", "key 27", "menu selezoom 1", "menu opdis 1",
                                      "set distipo.HScroll1.Value 40", "menu selezoom 2", "left -1000 -1000"}));
        if (dice_.chance(50)) lines.push_back("left " + coordinate() + " " + coordinate());
    }
  }
  if (dice_.chance(80)) lines.push_back("press Geststamp." + dice_.one_of({"Command1", "Command2"}));
  return lines;
}

RandomLines::Lines RandomLines::settings_lines() {
  Lines lines;
  for (int i = dice_.number(0, 4); i > 0; --i) {
    switch (dice_.number(1, 4)) {
      case 1:
        lines.push_back("press impost." + dice_.one_of({"Option1", "Option2", "Option3", "Option4"}));
        break;
      case 2:
        lines.push_back("type impost." + dice_.one_of({"Text3", "Text4"}) + " \"" +
                        dice_.one_of({"1", "0.5", "2,5", "0", "10", "-1", "x", "1e30", "1e-30", ""}) + "\"");
        break;
      default:
        lines.push_back("dialog Selcol");
        for (const std::string& line : color_lines()) lines.push_back(line);
        lines.push_back("end");
        lines.push_back("press impost." + dice_.one_of({"Command3", "Command4", "Command5"}));
    }
  }
  return lines;
}

RandomLines::Lines RandomLines::color_lines() {
  Lines lines;
  if (dice_.chance(80)) lines.push_back("press Selcol.Option1(" + std::to_string(dice_.number(0, 15)) + ")");
  lines.push_back("press Selcol." + dice_.one_of({"Command1", "Command2"}));
  return lines;
}

RandomLines::Lines RandomLines::vertex_lines() {
  Lines lines;
  lines.push_back("type CoordVert." + dice_.one_of({"Text1", "Text2"}) + " \"" + number() + "\"");
  lines.push_back("press CoordVert.Command1");
  if (dice_.chance(80)) lines.push_back("press CoordVert.Command2");
  return lines;
}

RandomLines::Lines RandomLines::percent_lines() {
  if (dice_.chance(50)) return {"set zoomp.VScroll1.Value " + std::to_string(dice_.number(0, 400))};
  return {"type zoomp.Text1 \"" + dice_.one_of({"50", "200", "100", "0", "-5", "abc", "1e9", "1e-9", "33,3%"}) + "\""};
}

}  // namespace trelvo
