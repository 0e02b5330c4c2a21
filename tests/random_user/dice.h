// Chances that are the same on every machine.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>

namespace trelvo {

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : source_(seed) {}

  // From `low` to `high`, both included.
  int number(int low, int high) {
    return low + static_cast<int>(source_() % (static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low) + 1));
  }
  bool chance(int percent) { return number(1, 100) <= percent; }
  std::string one_of(std::initializer_list<const char*> words) {
    return words.begin()[number(0, static_cast<int>(words.size()) - 1)];
  }

 private:
  std::mt19937_64 source_;
};

}  // namespace trelvo
