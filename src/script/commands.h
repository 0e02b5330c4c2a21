// The words that a script may use.
#pragma once

#include <map>
#include <string_view>

#include "script/session.h"
#include "script/words.h"

namespace trelvo {

struct ScriptCommand {
  std::size_t least;  // arguments
  std::size_t most;
  void (*run)(Session&, const Arguments&);
};

constexpr std::size_t any_number = static_cast<std::size_t>(-1);

using ScriptCommands = std::map<std::string_view, ScriptCommand>;

// What a user does with mouse, keys, menus and windows.
void add_user_commands(ScriptCommands& commands);
// The surroundings, and answers given ahead.
void add_setup_commands(ScriptCommands& commands);
// Output asked for.
void add_output_commands(ScriptCommands& commands);

}  // namespace trelvo
