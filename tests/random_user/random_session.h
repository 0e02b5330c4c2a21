// One session of the random user with a program of its own, in the present folder.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace trelvo {

struct Played {
  std::vector<std::string> lines;
  std::string output;
  std::string broken;  // what did not hold, empty for nothing
  int steps = 0;
  int reopened = 0;  // drawings saved, read again and found equal
};

// Each line also goes to `trail` before it is played.
Played play(std::uint64_t seed, int steps, std::ostream& trail);

}  // namespace trelvo
