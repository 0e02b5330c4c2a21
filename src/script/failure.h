// A line that cannot be done: it ends the script.
#pragma once

#include <stdexcept>

namespace trelvo {

class ScriptFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace trelvo
