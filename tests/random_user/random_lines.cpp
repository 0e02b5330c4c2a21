#include "random_user/random_lines.h"

#include "model/oggetti.h"

namespace trelvo {

namespace {

constexpr int most_documents = 4;
constexpr int widest = 120;                // pixels
constexpr std::size_t most_objects = 150;  // copies double what is there

std::size_t objects_in(const distipo& doc) {
  const disegno& d = doc.dis;
  return d.collSuperfici.numero() + d.collRettangoli.numero() + d.collLinee.numero() + d.collPolilinee.numero() +
         d.collTesti.numero() + d.collArchi.numero() + d.collCerchi.numero();
}

}  // namespace

void RandomLines::shown(const std::string& form) {
  auto found = waiting_.find(form);
  if (found != waiting_.end() && found->second > 0) --found->second;
}

std::deque<std::string> RandomLines::next_step() {
  lines_.clear();
  const distipo* doc = session_.bas.attivo();
  const bool full = doc != nullptr && (session_.bas.ndocumenti > most_documents || objects_in(*doc) > most_objects);
  answers_ahead();
  if (doc == nullptr || full) {
    choose_document();
    return lines_;
  }
  if (doc->surface.Image().width > widest && dice_.chance(90)) {
    // A small picture is soon painted.
    say("size 1500 900");
    return lines_;
  }
  if (dice_.chance(session_.report_open() ? 12 : 1)) {
    for (std::string& line : report_.next_step()) say(std::move(line));
    return lines_;
  }
  const int what = dice_.number(1, 100);
  if (what <= 4) {
    choose_document();
  } else if (what <= 14) {
    choose_command();
  } else if (what <= 58) {
    point();
  } else if (what <= 66) {
    finish();
  } else if (what <= 76) {
    edit();
  } else if (what <= 87) {
    look();
  } else if (what <= 94) {
    adjust();
  } else if (what <= 96) {
    go_elsewhere();
  } else {
    use_files();
  }
  return lines_;
}

void RandomLines::answers_ahead() {
  const Answers& waiting = session_.desktop.answers;
  if (waiting.boxes.empty() && dice_.chance(5))
    say("answer " + dice_.one_of({"yes", "no", "no", "no", "cancel", "ok"}));
  if (waiting.colors.empty() && dice_.chance(3)) say("color " + color());
  if (waiting.fonts.empty() && dice_.chance(2)) {
    say(dice_.one_of({"font cancel", "font \"Arial\" 10", "font \"Liberation Serif\" 300 bold italic",
                      "font \"Courier New\" 8.5 underline 1 2 3", "font \"\" 1 strikeout"}));
  }
}

void RandomLines::dialog(const std::string& form, const Lines& lines) {
  if (waiting_[form] > 1) return;
  ++waiting_[form];
  say("dialog " + form);
  for (const std::string& line : lines) say(line);
  say("end");
}

void RandomLines::choose_document() {
  const trelvobas& bas = session_.bas;
  if (bas.attivo() == nullptr) {
    if (dice_.chance(20)) {
      say("file " + file_name());
      say("menu gestfile 2");
    } else {
      say("menu gestfile 1");
    }
    return;
  }
  const int what =
      bas.ndocumenti > most_documents || objects_in(*bas.attivo()) > most_objects ? 1 : dice_.number(1, 10);
  if (what <= 2) {
    say("answer " + dice_.one_of({"no", "no", "no", "yes", "cancel"}));
    say(dice_.one_of({"close", "menu opfile 5"}));
  } else if (what <= 5) {
    say("menu opfile 1");
  } else if (what <= 9) {
    std::vector<int> open;
    for (const auto& window : bas.finestredocumenti) {
      if (window) open.push_back(window->numero);
    }
    say("activate " +
        std::to_string(open[static_cast<std::size_t>(dice_.number(0, static_cast<int>(open.size()) - 1))]));
  } else {
    for (int i = 0; i < bas.ndocumenti; ++i) say("answer " + dice_.one_of({"no", "no", "cancel"}));
    say(dice_.one_of({"quit", "menu gestfile 3"}));
  }
}

void RandomLines::choose_command() {
  if (dice_.chance(8)) {
    say("menu mnudistanza");
  } else if (dice_.chance(80)) {
    say("menu opdis " + std::to_string(dice_.number(1, 7)));
  } else {
    say("toolbar 2 " + std::to_string(dice_.number(1, 7)));
  }
}

void RandomLines::point() {
  const distipo& doc = *session_.bas.attivo();
  const bool asks_text = doc.cmd.comando() == "Testo" && doc.cmd.passo == 0;
  if (asks_text && dice_.chance(90)) dialog("Gesttesto", dialog_lines("Gesttesto"));
  const int what = dice_.number(1, 100);
  if (what <= 70) {
    const std::string verb = dice_.one_of({"left", "left", "left", "left", "left", "move"});
    say(verb + " " + coordinate() + " " + coordinate());
  } else if (what <= 75) {
    say(dice_.one_of({"leftlog ", "movelog "}) + std::to_string(dice_.number(-20000, 20000)) + " " +
        std::to_string(dice_.number(-20000, 20000)));
  } else {
    const std::string box = dice_.one_of({"frmMain.Text1", "frmMain.Text2"});
    say("type " + box + " \"" + typed() + "\"");
    say("keypress " + box + " 13");
  }
}

void RandomLines::finish() {
  const distipo& doc = *session_.bas.attivo();
  const int what = dice_.number(1, 10);
  if (doc.cmd.comando() == "Proprietà Oggetto" && doc.cmd.ntrovati > 0) {
    confirms_ = what <= 6;
    for (const char* form : {"TipoLinea", "TipoSuperficie", "Gesttesto"}) {
      if (dice_.chance(80)) dialog(form, dialog_lines(form));
    }
    confirms_ = false;
  }
  if (what <= 6) {
    say("right " + coordinate() + " " + coordinate());
  } else if (what <= 8) {
    say("key " + dice_.one_of({"13", "27"}));
  } else {
    say("keypress " + dice_.one_of({"frmMain.Text1", "frmMain.Text2"}) + " " + dice_.one_of({"13", "27"}));
  }
}

void RandomLines::any_key() {
  const std::string control = dice_.chance(50) ? dice_.one_of({"frmMain.Text1 ", "frmMain.Text2 "}) : "";
  if (dice_.chance(50)) {
    say("keydown " + control + std::to_string(dice_.chance(90) ? dice_.number(0, 255) : dice_.number(-70000, 70000)));
  } else {
    say((control.empty() ? "key " : "keypress ") + control + std::to_string(dice_.number(0, 255)));
  }
}

void RandomLines::edit() {
  const int what = dice_.number(1, 10);
  if (what <= 6) {
    say("menu modifica " + std::to_string(dice_.number(3, 9)));
  } else if (what <= 8) {
    say("menu impo " + std::to_string(dice_.number(1, 3)));
  } else {
    say("toolbar 4 " + std::to_string(dice_.number(1, 7)));
  }
  if (!dice_.chance(40)) return;
  // All that is in view, confirmed: the commands that wait for a base point are reached more often.
  say("left -1000 -1000");
  say("left 1000 1000");
  say("right 0 0");
}

void RandomLines::look() {
  const int what = dice_.number(1, 14);
  if (what > 12) {
    any_key();
  } else if (what <= 5) {
    const int zoom = dice_.number(1, 4);
    if (zoom == 4) dialog("zoomp", dialog_lines("zoomp"));
    say((dice_.chance(70) ? "menu selezoom " : "toolbar 3 ") + std::to_string(zoom));
  } else if (what <= 8) {
    say("set distipo." + dice_.one_of({"HScroll1", "VScroll1"}) + ".Value " + std::to_string(dice_.number(-5, 105)));
  } else if (what <= 9) {
    say("size " + std::to_string(15 * dice_.number(1, 120)) + " " + std::to_string(15 * dice_.number(1, 80)));
  } else if (what <= 10) {
    say(dice_.one_of({"movestrip 3", "movestrip 4", "leave"}));
  } else {
    say("wait " + dice_.one_of({"0.1", "0.9", "5", "80000"}));
  }
}

void RandomLines::adjust() {
  const int what = dice_.number(1, 20);
  if (what <= 3) {
    dialog("impost", dialog_lines("impost"));
    say("menu aiutdis 1");
  } else if (what <= 6) {
    say("menu aiutdis " + std::to_string(dice_.number(4, 7)));
  } else if (what <= 9) {
    say("menu filtri " + dice_.one_of({"0", "2", "3", "4", "6"}));
  } else if (what <= 11) {
    say("keydown " + std::to_string(dice_.number(117, 120)));
  } else if (what <= 12) {
    say("label " + std::to_string(dice_.number(8, 11)));
  } else if (what <= 14) {
    dialog("TipoLinea", dialog_lines("TipoLinea"));
    say("menu mnutipolinea");
  } else if (what <= 16) {
    dialog("TipoSuperficie", dialog_lines("TipoSuperficie"));
    say("menu mnutiposup");
  } else if (what <= 18) {
    dialog("Gesttesto", dialog_lines("Gesttesto"));
    say("menu mnutipotesto");
  } else if (what <= 19) {
    say("menu barre " + dice_.one_of({"1", "3", "4", "6", "7"}));
  } else {
    say("locale " + dice_.one_of({"it_IT", "en_US", "C"}));
  }
}

void RandomLines::use_files() {
  const int what = dice_.number(1, 23);
  if (what > 22) {
    say(dice_.one_of({"paper none", "paper 210 297", "paper 40 30 60 50", "paper 1 1", "paper 5000 9000"}));
  } else if (what > 20) {
    dialog("Geststamp", print_lines());
    say("menu opfile 8");
  } else if (what <= 6) {
    say("file " + file_name());
    say("menu opfile 2");
  } else if (what <= 10) {
    say("answer yes");
    say("file " + file_name());
    say("menu opfile 4");
  } else if (what <= 12) {
    say("menu opfile 3");
  } else if (what <= 15) {
    say("file " + dice_.one_of({"\"uscita.dxf\"", "\"cartella\"", "\"manca/uscita.dxf\"", "cancel"}));
    say("answer yes");
    say("menu mnudxf");
  } else if (what <= 16) {
    say("file " + dice_.one_of({"\"uscita.bmp\"", "\"cartella\"", "\"manca/uscita.bmp\"", "cancel"}));
    say("answer yes");
    say("menu mnucreabmp");
  } else if (what <= 17) {
    say(dice_.one_of({"menu help", "menu informa"}));
  } else {
    const std::string name = "\"" + saved_name(++saved_) + "\"";
    session_.desktop.answers.files.empty() ? say("file " + name) : say("file cancel");
    say("menu opfile 4");
  }
}

std::string RandomLines::number() {
  const int what = dice_.number(1, 100);
  if (what <= 60) return std::to_string(dice_.number(-10, 60));
  if (what <= 85) return std::to_string(dice_.number(-999, 9999)) + "." + std::to_string(dice_.number(0, 999));
  return dice_.one_of({"0", "1e9", "-1e9", "1e-9", "1e38", "-1e38", "1e300", "3.4e38", "123456789.123", "0.004"});
}

std::string RandomLines::coordinate() { return dice_.chance(92) ? std::to_string(dice_.number(-5, 60)) : number(); }

std::string RandomLines::typed() {
  const int what = dice_.number(1, 100);
  if (what <= 60) return coordinate() + "," + coordinate();
  if (what <= 80) return number();
  if (what <= 90) return number() + "," + number();
  return dice_.one_of({"", ",", ",,", "abc", "1;2", "&H10", "1e400,0", "-", "5,", ",5", "Nessuno", "Vari", "€"});
}

std::string RandomLines::file_name() {
  return dice_.one_of({"\"uno.DIS\"", "\"due.DIS\"", "\"tre.DIS\"", "\"pronto.DIS\"", "\"testo.txt\"", "\"rotto.DIS\"",
                       "\"manca.DIS\"", "\"manca/uno.DIS\"", "\"cartella\"", "\"vuoto.DIS\"", "\"copia.DIS\"", "\"\"",
                       "cancel"});
}

std::string RandomLines::color() {
  const auto part = [&] { return std::to_string(dice_.number(0, 255)); };
  return dice_.chance(20) ? "cancel" : part() + " " + part() + " " + part();
}

}  // namespace trelvo
