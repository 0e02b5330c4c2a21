// Variables of the active document and of the module, and its command records, as a script prints them.
#pragma once

#include <string>
#include <string_view>

#include "script/session.h"

namespace trelvo {

// Fails for a name that is no variable, for an index outside an array, and for a document's variable when none is open.
std::string shown_state(const Session& session, std::string_view name);

std::string shown_record(const reccomando& record);

}  // namespace trelvo
