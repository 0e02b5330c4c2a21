#include "script/names.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "script/failure.h"
#include "script/surface_properties.h"
#include "script/words.h"

namespace trelvo {

namespace {

[[noreturn]] void missing(std::string_view what, std::string_view name) {
  throw ScriptFailure("no " + std::string(what) + " \"" + std::string(name) + "\"");
}

// The part in front of the first point, which it takes away with the point; everything if there is none.
std::string_view first_part(std::string_view& name) {
  const std::size_t point = name.find('.');
  const std::string_view part = name.substr(0, point);
  name.remove_prefix(point == std::string_view::npos ? name.size() : point + 1);
  return part;
}

Control& control_of(const Form& form, std::string_view name) {
  const IndexedName wanted = indexed_name(name);
  Control* control = form.find(wanted.name, wanted.index);
  if (control == nullptr) missing("control", form.name + "." + std::string(name));
  return *control;
}

// The surface of a form or picture box, nullptr for one that has none.
const RasterSurface* surface_named(const Session& session, std::string_view owner) {
  if (owner == "distipo") return &session.document().surface;
  if (owner == "impost.Picture1") {
    form_named(session, "impost");
    return &session.bas.impost.anteprima;
  }
  if (owner == "Geststamp.Picture1") {
    form_named(session, "Geststamp");
    return &session.bas.Geststamp.anteprima;
  }
  return nullptr;
}

// A row of a list, as in "TipoLinea.List1(0).List(2)".
std::optional<std::string> shown_row(const Session& session, std::string_view owner, std::string_view property) {
  if (!property.starts_with("List(")) return std::nullopt;
  const auto* list = dynamic_cast<const ListBox*>(&control_named(session, owner));
  const int row = indexed_name(property).index;
  if (list == nullptr || row < 0 || row >= list->ListCount)
    missing("row", std::string(owner) + "." + std::string(property));
  return trelvo::quoted(list->List(row));
}

MenuItem* menu_of(const Form& form, std::string_view name, int index) {
  return dynamic_cast<MenuItem*>(form.find(name, index));
}

}  // namespace

IndexedName indexed_name(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return {std::string(text), no_index};
  int index = 0;
  if (text.back() != ')' || !read_integer(text.substr(open + 1, text.size() - open - 2), index)) {
    missing("name like", text);
  }
  return {std::string(text.substr(0, open)), index};
}

Form& form_named(const Session& session, std::string_view name) {
  if (name == session.bas.frmMain.name) return session.bas.frmMain;
  if (name == "distipo") return session.document();
  if (name == "videoscritt" && session.report_open()) return session.open_report();
  for (Form* dialog : session.desktop.dialogs()) {
    if (name == dialog->name) return *dialog;
  }
  missing("open form", name);
}

Control& control_named(const Session& session, std::string_view name) {
  std::string_view rest = name;
  const Form& form = form_named(session, first_part(rest));
  return control_of(form, rest);
}

FoundProperty property_named(const Session& session, std::string_view name) {
  std::string_view rest = name;
  Form& form = form_named(session, first_part(rest));
  const std::string_view middle = first_part(rest);
  const bool own = rest.empty();
  Control* control = own ? nullptr : &control_of(form, middle);
  const PropertyOwner& owner = own ? static_cast<const PropertyOwner&>(form) : *control;
  PropertyBase* property = owner.property(own ? middle : rest);
  if (property == nullptr) missing("property", name);
  return {form, control, *property};
}

std::string shown_property(const Session& session, std::string_view name) {
  const std::size_t point = std::min(name.rfind('.'), name.size());
  if (const auto row = shown_row(session, name.substr(0, point), name.substr(std::min(point + 1, name.size()))))
    return *row;
  if (const RasterSurface* surface = surface_named(session, name.substr(0, point))) {
    const auto shown = shown_surface_property(*surface, name.substr(std::min(point + 1, name.size())));
    if (shown) return *shown;
  }
  return property_named(session, name).property.shown();
}

MenuItem& menu_named(const Session& session, std::string_view name, int index) {
  MenuItem* item = nullptr;
  if (name.find('.') != std::string_view::npos) {
    std::string_view rest = name;
    const Form& form = form_named(session, first_part(rest));
    item = menu_of(form, rest, index);
  } else {
    const distipo* doc = session.bas.attivo();
    if (doc != nullptr) item = menu_of(*doc, name, index);
    if (item == nullptr) item = menu_of(session.bas.frmMain, name, index);
    if (item == nullptr && session.report_open()) item = menu_of(*session.relazione, name, index);
  }
  if (item == nullptr)
    missing("menu item", index == no_index ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")");
  return *item;
}

std::string name_of(const Control& control) { return control.form.name + "." + control.full_name(); }

}  // namespace trelvo
