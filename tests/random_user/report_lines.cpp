#include "random_user/report_lines.h"

#include "report/descrizione.h"
#include "report/rtf_lettura.h"
#include "report/rtf_scrittura.h"

namespace trelvo {

namespace {

constexpr std::size_t longest = 400;
constexpr const char* text_box = "videoscritt.RichTextBox1";

}  // namespace

std::deque<std::string> ReportLines::next_step() {
  lines_.clear();
  if (!session_.report_open()) {
    say(dice_.chance(50) ? "report" : "report " + file_name());
    return lines_;
  }
  if (session_.relazione->RichTextBox1.documento().lunghezza() > longest) {
    set("Text", "\"\"");
    return lines_;
  }
  const int what = dice_.number(1, 100);
  if (what <= 25) {
    write();
  } else if (what <= 45) {
    select();
  } else if (what <= 65) {
    format();
  } else if (what <= 80) {
    paragraphs();
  } else if (what <= 90) {
    use_dialog();
  } else {
    use_files();
  }
  return lines_;
}

void ReportLines::set(const std::string& property, const std::string& value) {
  say(std::string("set ") + text_box + "." + property + " " + value);
}

std::string ReportLines::words() {
  return "\"" +
         dice_.one_of({"casa", "Casa e CASA", "", " ", "due\\nrighe", "\\n", "\\n\\n", "perché €", "日本", "{\\\\rtf1",
                       "\\\\par }", "\xF0\x9F\x98\x80", "tre\\nrighe\\nin fila"}) +
         "\"";
}

std::string ReportLines::file_name() {
  return dice_.one_of({"\"uno.rtf\"", "\"due.rtf\"", "\"pronto.rtf\"", "\"rotto.rtf\"", "\"manca.rtf\"", "\"cartella\"",
                       "\"manca/uno.rtf\"", "\"testo.txt\"", "\"vuoto.DIS\""});
}

void ReportLines::write() {
  switch (dice_.number(1, 6)) {
    case 1:
      say(std::string("type ") + text_box + " " + words());
      break;
    case 2:
      set("SelText", words());
      break;
    case 3:
      say("menu videoscritt.modifi " + number(1, 3));
      break;
    default:
      say(std::string("keypress ") + text_box + " " + dice_.one_of({"8", "13", "9", "97", "232", "128", "27", "0"}));
  }
}

void ReportLines::select() {
  const int length = static_cast<int>(session_.relazione->RichTextBox1.documento().lunghezza());
  if (dice_.chance(10)) {
    say("menu videoscritt.modifi 7");
    return;
  }
  set("SelStart", number(-1, length + 2));
  if (dice_.chance(60)) set("SelLength", number(-1, length + 2));
}

void ReportLines::format() {
  switch (dice_.number(1, 8)) {
    case 1:
      set(dice_.one_of({"SelBold", "SelItalic", "SelUnderline", "SelStrikeThru"}), number(-1, 1));
      break;
    case 2:
      set("SelFontSize", dice_.one_of({"10", "0", "-3", "8.25", "1638", "1e9", "0.4"}));
      break;
    case 3:
      set("SelFontName", dice_.one_of({"\"Arial\"", "\"\"", "\"Courier New\"", "\"Perché; {\\\\b}\""}));
      break;
    case 4:
      set("SelColor", dice_.one_of({"0", "255", "16777215", "-1", "2147483647"}));
      break;
    case 5:
      set("SelCharOffset", dice_.one_of({"45", "-40", "0", "7", "2000000000", "-3000"}));
      break;
    case 6:
      say("menu videoscritt." + dice_.one_of({"apice", "pedice", "carattere", "mnucolor", "sfondo"}));
      break;
    default:
      say("press videoscritt.Toolbar1(" + dice_.one_of({"9", "10", "11", "12", "13", "21", "22"}) + ")");
  }
}

void ReportLines::paragraphs() {
  switch (dice_.number(1, 4)) {
    case 1:
      set("SelAlignment", number(-1, 3));
      break;
    case 2:
      set(dice_.one_of({"SelBullet", "BulletIndent"}), dice_.one_of({"0", "1", "-1", "360", "99999999"}));
      break;
    case 3:
      say("press videoscritt.Toolbar1(" + dice_.one_of({"15", "16", "17", "19"}) + ")");
      break;
    default:
      say("menu videoscritt.allinea " + dice_.one_of({"1", "2", "3", "6"}));
  }
}

void ReportLines::use_dialog() {
  if (dice_.chance(60)) {
    say("dialog trova");
    say("type trova.Text1 " + dice_.one_of({"\"a\"", "\"casa\"", "\"\"", "\"e\"", "\" \"", "\"xyz\""}));
    if (dice_.chance(60)) say("type trova.Text2 " + dice_.one_of({"\"\"", "\"tana\"", "\"aa\"", "\"è\""}));
    for (int i = dice_.number(1, 4); i > 0; --i) {
      say("press trova." + dice_.one_of({"Command1", "Command1", "Command2", "Command3", "Check1"}));
    }
    say("end");
    say("menu videoscritt.modifi 5");
    return;
  }
  say("dialog rientri");
  say("set rientri." + dice_.one_of({"Text1", "Text2", "Text3"}) + ".Text \"" +
      dice_.one_of({"1", "1,5", "-0.5", "due", "51", "", "0", "1e9"}) + "\"");
  say("press rientri." + dice_.one_of({"Command1", "Command1", "Command2"}));
  say("end");
  say("menu videoscritt.allinea 5");
}

void ReportLines::use_files() {
  const int item = dice_.number(1, 6);
  if (dice_.chance(50)) say("answer " + dice_.one_of({"yes", "no", "cancel"}));
  if (session_.desktop.answers.files.empty()) say("file " + file_name());
  if (item == 6) {
    say("menu videoscritt.file 7");
  } else {
    say("menu videoscritt.file " + std::to_string(item));
  }
}

std::string ReportInvariants::broken(const Session& session) {
  if (!session.relazione) return {};
  const RichTextBox& box = session.relazione->RichTextBox1;
  const relazione& report = box.documento();
  if (box.inizio() > report.lunghezza() || box.lunghezza() > report.lunghezza() - box.inizio()) {
    return "the selection of the report goes beyond its text";
  }
  if (report == kept_) return {};
  const std::string fault = fault_of(report);
  if (!fault.empty()) return "the report is not sound: " + fault;
  const relazione read = leggi_rtf(scrivi_rtf(report));
  if (read != report) return "a report read again differs:\n" + described(report) + "\n" + described(read);
  kept_ = report;
  return {};
}

}  // namespace trelvo
