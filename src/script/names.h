// Forms, controls and properties by the names that a script uses. What is not there fails.
#pragma once

#include <string>
#include <string_view>

#include "script/session.h"

namespace trelvo {

// "barra(3)": a name, and an index or no_index.
struct IndexedName {
  std::string name;
  int index = no_index;
};
IndexedName indexed_name(std::string_view text);

// frmMain, distipo for the active document, videoscritt, or a dialog that is open.
Form& form_named(const Session& session, std::string_view name);

// "frmMain.Text1", "distipo.aiutdis(4)".
Control& control_named(const Session& session, std::string_view name);

// "frmMain.Text1.Text", "distipo.Caption": `control` is nullptr for a form's own property.
struct FoundProperty {
  Form& form;
  Control* control;
  PropertyBase& property;
};
FoundProperty property_named(const Session& session, std::string_view name);

// The value of a property as it is printed, those of its surface and the rows of a list included.
std::string shown_property(const Session& session, std::string_view name);

// Looked for in the active document, the frame, then the report editor; "distipo.file" in that form only.
MenuItem& menu_named(const Session& session, std::string_view name, int index);

// Its form and name, as in "frmMain.Text1".
std::string name_of(const Control& control);

}  // namespace trelvo
