#include "random_user/invariants.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <set>

#include "model/punti.h"
#include "platform/text.h"
#include "script/shown.h"

namespace trelvo {

namespace {

// Characters in a drawing file.
constexpr std::size_t face_name = 32;
constexpr std::size_t file_text = 100;

template <class Action>
void every_object(const disegno& dis, Action&& action) {
  visita<superficie, Rettangolo, Linea, polilinea, testo, Arco, Cerchio>(dis, action);
}

std::array<std::size_t, 7> counts(const disegno& d) {
  return {d.collSuperfici.numero(), d.collRettangoli.numero(), d.collLinee.numero(), d.collPolilinee.numero(),
          d.collTesti.numero(),     d.collArchi.numero(),      d.collCerchi.numero()};
}

template <class Object, class Action>
void every_point(const Object& object, Action&& action) {
  per_ogni_punto(const_cast<Object&>(object), [&](const double& x, const double& y) { action(x, y); });
}

// A number that changes with any point or attribute of the objects it is fed.
class Figures {
 public:
  template <class Object>
  void operator()(const Object& o) {
    every_point(o, [this](double x, double y) {
      add(std::bit_cast<std::uint64_t>(x));
      add(std::bit_cast<std::uint64_t>(y));
    });
    if constexpr (requires { o.colcont; }) add(static_cast<std::uint64_t>(o.colcont));
    if constexpr (requires { o.campitura; }) add(static_cast<std::uint64_t>(o.campitura));
    if constexpr (requires { o.colorelinea; }) add(static_cast<std::uint64_t>(o.colorelinea));
    if constexpr (requires { o.stringa_testo; }) add(o.stringa_testo);
  }
  void add(const std::string& text) { add(std::hash<std::string>{}(text)); }
  std::uint64_t value() const { return value_; }
  void add(std::uint64_t part) { value_ = (value_ ^ part) * 0x100000001B3U + (value_ >> 29U); }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

// Of the first objects of each class, as many as there were.
std::uint64_t figures(const disegno& dis, const std::array<std::size_t, 7>& as_many) {
  Figures all;
  std::size_t which = 0;
  const auto walk = [&](const auto& objects) {
    std::size_t left = as_many[which++];
    for (const auto& object : objects) {
      if (left-- == 0) break;
      all(object);
    }
  };
  walk(dis.collSuperfici);
  walk(dis.collRettangoli);
  walk(dis.collLinee);
  walk(dis.collPolilinee);
  walk(dis.collTesti);
  walk(dis.collArchi);
  walk(dis.collCerchi);
  return all.value();
}

bool changes_objects(const std::string& command) {
  static const std::set<std::string> all{"Cancella", "Sposta",           "Copia", "Ruota", "Specchio",
                                         "Stira",    "Proprietà Oggetto"};
  return all.count(command) > 0;
}

bool is_one_of(const std::string& text, std::initializer_list<std::string> allowed) {
  return std::find(allowed.begin(), allowed.end(), text) != allowed.end();
}

// "Polilinea: 3° Vertice" whatever its number.
bool is_vertex_prompt(const std::string& text, const std::string& before) {
  if (!text.starts_with(before)) return false;
  const std::size_t end = text.find("° Vertice", before.size());
  return end != std::string::npos && end > before.size() && text.find_first_not_of("-0123456789", before.size()) == end;
}

bool edit_prompt(const std::string& command, int step, const std::string& text) {
  if (step == 2) return text == "<" + command + ">";
  if (step == 3) return text == (command == "Specchio" ? "Primo Punto - Asse:" : "<" + command + "> Punto Base:");
  if (command == "Stira") return text == " Stira _ Primo Punto:";
  return is_one_of(text,
                   {command + " _ Selez. Oggetto: ", command + " (F) _ Primo Punto:", command + " (I) _ Primo Punto:"});
}

bool prompt_fits(const std::string& command, int step, const std::string& text) {
  if (command == "Linea") return text == " Linea_Dal Punto: ";
  if (command == "Distanza-Angolo") return text == " Distanza-Angolo_Dal Punto: ";
  if (command == "Cerchio") return text == " Cerchio_Centro: ";
  if (command == "Arco") {
    return text == (step < 2 ? " Arco_Primo Punto(P.Iniziale): " : " Arco_Secondo Punto(P.Finale): ");
  }
  if (command == "Superficie" || command == "Polilinea") return is_vertex_prompt(text, " " + command + ": ");
  if (command == "Rettangolo") return text == " Rettangolo: Primo Punto: ";
  if (command == "Testo") return text == "Testo _ Punto Iniziale:";
  if (command == "Zoom Area") return is_one_of(text, {" Zoom_Primo punto: ", "' Zoom_Primo punto: "});
  return changes_objects(command) && edit_prompt(command, step, text);
}

bool second_prompt_fits(const std::string& command, int step, const std::string& text) {
  if (changes_objects(command)) return true;  // says also how a selection went
  // A command taken up again after a zoom shows its second prompt from its third point on.
  if (text.empty() || step == 0) return text.empty() && step <= 1;
  if (command == "Linea" || command == "Distanza-Angolo") return text == "Al Punto: ";
  if (command == "Cerchio") return text == "Raggio: ";
  if (command == "Arco") return text == (step == 1 ? " Arco_Secondo Punto(P.Finale): " : " Arco_Terzo Punto: ");
  if (command == "Superficie" || command == "Polilinea") return is_vertex_prompt(text, " ");
  return text == "Secondo Punto: ";
}

int last_step(const std::string& command) { return changes_objects(command) ? 3 : command == "Arco" ? 2 : 1; }

}  // namespace

void Invariants::require(bool holds, const std::string& what) {
  if (!holds && broken_.empty()) broken_ = what;
}

std::string Invariants::broken() {
  broken_.clear();
  windows();
  for (const auto& window : bas_.finestredocumenti) {
    if (window) look_at(*window);
  }
  std::erase_if(seen_, [&](const auto& entry) {
    const auto number = static_cast<std::size_t>(entry.first);
    return number >= bas_.finestredocumenti.size() || !bas_.finestredocumenti[number];
  });
  return broken_;
}

void Invariants::windows() {
  const auto open = std::count_if(bas_.finestredocumenti.begin(), bas_.finestredocumenti.end(),
                                  [](const auto& window) { return window != nullptr; });
  require(open == bas_.ndocumenti,
          std::to_string(bas_.ndocumenti) + " documents counted, " + std::to_string(open) + " open");
  require(bas_.ordine.size() == static_cast<std::size_t>(open), "the order of activation holds every window once");
  require(std::set<const distipo*>(bas_.ordine.begin(), bas_.ordine.end()).size() == bas_.ordine.size(),
          "a window stands once in the order of activation");
  require(bas_.chiusi.empty() && bas_.eventi == 0, "no event is left running");
  require(bas_.desktop.MousePointer.get() != pointer_hourglass, "the hourglass is put back");
}

void Invariants::look_at(const distipo& doc) {
  Seen& seen = seen_[doc.numero];
  lost_objects(doc, seen);
  object_states(doc);
  finite(doc);
  engine(doc);
  seen.command = doc.cmd.comando();
  seen.suspended = doc.cmd.comandosospeso.tipo();
}

void Invariants::lost_objects(const distipo& doc, Seen& seen) {
  const std::array<std::size_t, 7> now = counts(doc.dis);
  std::size_t deleted = 0;
  every_object(doc.dis, [&](const auto& o) { deleted += o.stato == stato_cancellato; });
  bool fewer = false;
  for (std::size_t i = 0; i < now.size(); ++i) fewer |= now[i] < seen.objects[i];
  require(!fewer, "a collection lost an object");
  const auto may_have_run = [&](const auto& fits) {
    return fits(seen.command) || fits(seen.suspended) || fits(doc.cmd.ultimocomando) || fits(doc.cmd.comando());
  };
  require(deleted >= seen.deleted, "a deleted object came back");
  require(deleted == seen.deleted || may_have_run([](const std::string& c) { return c == "Cancella"; }),
          "objects were deleted by no command");
  const bool same = fewer || figures(doc.dis, seen.objects) == seen.figures || seen.figures == 0;
  require(same || may_have_run(changes_objects), "objects were changed by no command");
  const bool first = !seen.met;
  require(first || (same && now == seen.objects) || doc.cmd.modificato == 1, "a changed drawing would close unasked");
  seen.met = true;
  seen.objects = now;
  seen.deleted = deleted;
  seen.figures = figures(doc.dis, now);
}

void Invariants::object_states(const distipo& doc) {
  const bool busy = !doc.cmd.comando().empty() || !doc.cmd.comandosospeso.tipo().empty();
  every_object(doc.dis, [&](const auto& o) {
    require(o.stato == 0 || o.stato == stato_cancellato || o.stato == stato_selezionato,
            "an object has a state that is none");
    require(busy || o.stato != stato_selezionato, "an object is selected while no command runs");
  });
}

void Invariants::finite(const distipo& doc) {
  every_object(doc.dis, [&](const auto& o) {
    every_point(o, [&](double x, double y) { require(std::isfinite(x) && std::isfinite(y), "a point is not finite"); });
  });
  const statovista& v = doc.vista;
  for (const double value :
       {v.rapscala, static_cast<double>(v.xminvis), static_cast<double>(v.yminvis), static_cast<double>(v.larghezzavis),
        static_cast<double>(v.altezzavis), v.xmindis, v.ymindis, v.xmaxdis, v.ymaxdis,
        static_cast<double>(doc.surface.ScaleLeft), static_cast<double>(doc.surface.ScaleTop)}) {
    require(std::isfinite(value), "the view is not finite");
  }
  require(v.rapscala > 0, "the scale is not positive");
}

void Invariants::engine(const distipo& doc) {
  const statocomandi& cmd = doc.cmd;
  const bool within = cmd.livello >= 1 && static_cast<std::size_t>(cmd.livello) < cmd.comandi.size();
  require(within, "the level lies outside the records");
  if (!within) return;
  require(cmd.passo >= 0 && cmd.passo <= (cmd.comando().empty() ? 0 : last_step(cmd.comando())),
          "step " + std::to_string(cmd.passo) + " in \"" + cmd.comando() + "\"");
  if (cmd.comando().empty()) {
    idle(doc);
  } else if (bas_.attivo() == &doc) {
    prompts(doc);
  } else {
    require(false, "\"" + cmd.comando() + "\" runs in a window that is not active");
  }
}

void Invariants::idle(const distipo& doc) {
  require(doc.cmd.comandosospeso.tipo().empty(), "a command is suspended and none runs");
  require(doc.surface.AutoRedraw(), "AutoRedraw is off while no command runs");
  require(!doc.Line3.Visible && !doc.Line4.Visible, "the rubber band is left");
  require(!doc.Shape1.Visible && !doc.Shape2.Visible && !doc.Shape3.Visible, "a shape is left");
  if (bas_.attivo() != &doc) return;
  const frmMainForm& f = bas_.frmMain;
  require(f.Label1.Caption.get() == "Comando: ", "idle, and the prompt is \"" + f.Label1.Caption.get() + "\"");
  require(f.Label2.Caption.get().empty(), "idle, and the second prompt is \"" + f.Label2.Caption.get() + "\"");
}

void Invariants::prompts(const distipo& doc) {
  const frmMainForm& f = bas_.frmMain;
  const std::string& command = doc.cmd.comando();
  const std::string where = "\"" + command + "\" at step " + std::to_string(doc.cmd.passo) + " prompts ";
  require(prompt_fits(command, doc.cmd.passo, f.Label1.Caption), where + "\"" + f.Label1.Caption.get() + "\"");
  require(second_prompt_fits(command, doc.cmd.passo, f.Label2.Caption),
          where + "second \"" + f.Label2.Caption.get() + "\"");
}

namespace {

// One object as a line of its fields in the file. The file keeps the first characters of a text, as its code page has
// them; whole degrees; the bold flag in the place of the italic one; a flag as 0 or 1; neither marks nor selection.
class KeptLine {
 public:
  template <class Object>
  void operator()(const Object& o) {
    if (o.stato == stato_cancellato) return;
    line_ = std::to_string(static_cast<int>(kind(o)));
    if constexpr (requires { o.stringa_testo; }) {
      text(o);
    } else {
      every_point(o, [this](double x, double y) { add(x), add(y); });
    }
    if constexpr (requires { o.colcont; }) add(o.colcont), add(o.spescont), add(o.trattcont);
    if constexpr (requires { o.campitura; }) add(o.campitura), add(o.colocampitura);
    if constexpr (requires { o.colorelinea; }) add(o.colorelinea), add(o.speslinea), add(o.TipoLinea);
    lines.push_back(line_);
  }
  std::vector<std::string> lines;

 private:
  static char kind(const superficie&) { return 'S'; }
  static char kind(const Rettangolo&) { return 'R'; }
  static char kind(const Linea&) { return 'L'; }
  static char kind(const polilinea&) { return 'P'; }
  static char kind(const testo&) { return 'T'; }
  static char kind(const Arco&) { return 'A'; }
  static char kind(const Cerchio&) { return 'C'; }

  void text(const testo& o) {
    add(o.pos_testox), add(o.pos_testoy), add(o.dimens_testo), add(o.ang_testo());
    add(o.colore_testo), add(o.colore_opaco_testo);
    for (const std::int16_t flag : {o.barrato_testo, o.bold_testo, o.opaco_testo, o.sottolineato_testo})
      add(flag == -1);
    const std::string written = from_code_page(to_code_page(o.carattere_testo() + o.stringa_testo));
    const std::string words = text_right(written, text_length(written) - face_name);
    line_ += ' ' + quoted(text_left(written, face_name)) + quoted(right_trimmed(text_left(words, file_text)));
  }
  template <class Value>
  void add(const Value& value) {
    line_ += ' ' + shown(value);
  }
  std::string line_;
};

}  // namespace

std::uint64_t seen_by_user(const trelvobas& bas) {
  Figures all;
  const distipo* doc = bas.attivo();
  if (doc == nullptr) return 0;
  every_object(doc->dis, [&](const auto& o) {
    all(o);
    all.add(static_cast<std::uint64_t>(o.stato));
  });
  const auto& pixels = doc->surface.Image().pixels;
  all.add(
      std::hash<std::string_view>{}({reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof pixels[0]}));
  for (const double number : {doc->filtro.xfiltro, doc->filtro.yfiltro, static_cast<double>(doc->Shape3.Left.get()),
                              static_cast<double>(doc->cmd.ntrovati)}) {
    all.add(std::bit_cast<std::uint64_t>(number));
  }
  all.add(doc->Shape3.Visible ? 1U : 0U);
  for (const TextBox* box : {&bas.frmMain.Text1, &bas.frmMain.Text2, &bas.frmMain.Text3, &bas.frmMain.Text4}) {
    all.add(box->Text.get());
  }
  return all.value();
}

std::vector<std::string> kept_objects(const disegno& dis) {
  KeptLine all;
  every_object(dis, all);
  return all.lines;
}

}  // namespace trelvo