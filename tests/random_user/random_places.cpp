// Where a user without a plan goes less often: other tools, pictures of dialogs, sheets in files, folders that vanish.
#include "random_user/outside.h"
#include "random_user/random_lines.h"
#include "random_user/report_reopening.h"

namespace trelvo {

void RandomLines::go_elsewhere() {
  const int what = dice_.number(1, 12);
  if (what <= 3) {
    any_tool();
  } else if (what <= 5) {
    look_at_dialog();
  } else if (what <= 7) {
    print_to_file();
  } else if (what <= 8) {
    say(dice_.one_of({folder_comes, folder_comes, folder_goes}));
  } else if (what <= 10) {
    use_fleeting_folder();
  } else {
    keep_report();
  }
}

void RandomLines::any_tool() {
  const int bar = dice_.number(1, 4);
  const auto& buttons = session_.bas.frmMain.Toolbar1(bar).buttons;
  const int button = dice_.number(1, static_cast<int>(buttons.size()));
  if (buttons[static_cast<std::size_t>(button) - 1].tip.empty()) return any_tool();
  if (bar == 1 && dice_.chance(70)) {
    const std::string file = session_.desktop.answers.files.empty() ? file_name() : "cancel";
    say("answer " + dice_.one_of({"yes", "no", "cancel"}));
    say("file " + file);
  }
  say("toolbar " + std::to_string(bar) + " " + std::to_string(button));
}

void RandomLines::look_at_dialog() {
  const auto place = [&] { return " " + std::to_string(dice_.number(-500, 5000)); };
  const std::string form = dice_.one_of({"impost", "Geststamp", "TipoLinea", "TipoSuperficie"});
  const std::string picture = form == "TipoLinea" ? "Picture4" : form == "TipoSuperficie" ? "Picture2" : "Picture1";
  const std::string over = "moveon " + form + "." + picture;
  Lines lines;
  for (int i = dice_.number(1, 3); i > 0; --i) lines.push_back(over + place() + place());
  if (form != "Geststamp") {
    for (const std::string& line : dialog_lines(form)) lines.push_back(line);
  }
  dialog(form, lines);
  say(form == "impost"      ? "menu aiutdis 1"
      : form == "Geststamp" ? "menu opfile 8"
      : form == "TipoLinea" ? "menu mnutipolinea"
                            : "menu mnutiposup");
}

void RandomLines::print_to_file() {
  if (session_.desktop.answers.print_files.empty()) {
    say("printto \"" +
        dice_.one_of({"foglio.pdf", "foglio.pdf", "cartella", "manca/foglio.pdf", "effimera/foglio.pdf", ""}) + "\"");
  }
  Lines lines;
  if (dice_.chance(50)) lines.push_back("type Geststamp.Text1 \"" + number() + "\"");
  lines.push_back("press Geststamp.Command1");
  dialog("Geststamp", lines);
  say("menu opfile 8");
}

void RandomLines::use_fleeting_folder() {
  const std::string folder = std::string("file \"") + fleeting_folder;
  const auto use = [&](const std::string& name, const std::string& action) {
    say("answer " + dice_.one_of({"yes", "yes", "no"}));
    say(session_.desktop.answers.files.empty() ? folder + "/" + name + "\"" : "file cancel");
    say(action);
  };
  switch (dice_.number(1, 5)) {
    case 1:
      use("uscita.dxf", "menu mnudxf");
      break;
    case 2:
      use("uscita.bmp", "menu mnucreabmp");
      break;
    case 3:
      if (session_.report_open()) {
        use("uno.rtf", "menu videoscritt.file " + std::to_string(dice_.number(2, 5)));
        break;
      }
      [[fallthrough]];
    default:
      use("uno.DIS", "menu opfile " + dice_.one_of({"2", "3", "4", "4"}));
  }
}

// A report under a name of its own, not quite as it was.
void RandomLines::keep_report() {
  if (!session_.report_open()) {
    say("report");
    return;
  }
  const int length = static_cast<int>(session_.relazione->RichTextBox1.documento().lunghezza());
  const std::string box = "videoscritt.RichTextBox1.";
  say("set " + box + "SelStart " + std::to_string(dice_.number(0, length)));
  say("set " + box + "SelText \"" + dice_.one_of({"uno", "due\\n", "\\n", "{\\\\par}", "perché €", "日本"}) + "\"");
  say("menu videoscritt.modifi 7");
  say("press videoscritt.Toolbar1(" + dice_.one_of({"10", "11", "12", "13", "16", "17", "19", "21", "22"}) + ")");
  const std::string name = "\"" + ReportReopening::saved_name(++saved_) + "\"";
  say(session_.desktop.answers.files.empty() ? "file " + name : "file cancel");
  say("menu videoscritt.file 4");
}

}  // namespace trelvo
