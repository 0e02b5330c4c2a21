// What holds for a program between two events, whatever its user does.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "document/trelvobas.h"

namespace trelvo {

class Invariants {
 public:
  explicit Invariants(const trelvobas& bas) : bas_(bas) {}

  // What does not hold, empty if all does.
  std::string broken();

 private:
  // What a document held when it was looked at last.
  struct Seen {
    bool met = false;
    std::array<std::size_t, 7> objects{};
    std::size_t deleted = 0;
    std::uint64_t figures = 0;  // of the objects that were there
    std::string command;
    std::string suspended;
  };

  void look_at(const distipo& doc);
  void lost_objects(const distipo& doc, Seen& seen);
  void object_states(const distipo& doc);
  void finite(const distipo& doc);
  void engine(const distipo& doc);
  void idle(const distipo& doc);
  void prompts(const distipo& doc);
  void windows();
  void require(bool holds, const std::string& what);

  const trelvobas& bas_;
  std::map<int, Seen> seen_;
  std::string broken_;
};

// All objects, the picture and the readouts of the active document, as a number.
std::uint64_t seen_by_user(const trelvobas& bas);

// The objects of a drawing that are not deleted, as lines that a save and a reading keep: texts as the file holds them.
std::vector<std::string> kept_objects(const disegno& dis);

}  // namespace trelvo
