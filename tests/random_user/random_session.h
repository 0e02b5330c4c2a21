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
  int reopened = 0;                 // drawings and reports saved, read again and found equal
  std::vector<std::size_t> sheets;  // what went to paper
  std::vector<std::uint64_t> seen;  // before each line: what a user sees, and all objects, as a number
};

// Each line also goes to `trail` before it is played.
Played play(std::uint64_t seed, int steps, std::ostream& trail);

// Plays the same lines with plain walks over all objects in place of those by their places. What a user sees must be
// the same: tells what is not.
std::string differs_by_plain_walks(const Played& played);

}  // namespace trelvo
