// The vertex list that the three vertex classes hold: vertices and stretch marks at 0 to vertic, index 0 never used.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/vertice.h"

namespace trelvo {

class elencovertici {
 public:
  std::int16_t vertic() const { return static_cast<std::int16_t>(punti_.size() - 1); }
  // Keeps the vertices up to the new count. Error 9 below 0.
  void vertic(std::int16_t numero);

  // Error 9 for an index outside 0 to vertic.
  void inserisci(double x, double y, int i) { punti_[verificato(i)] = {x, y}; }
  const vertice& preleva(int i) const { return punti_[verificato(i)]; }
  std::int16_t selezionato(int i) const { return segni_[verificato(i)]; }
  void seleziona(std::int16_t segno, int i) { segni_[verificato(i)] = segno; }

  // From vertex 1 on.
  std::span<const vertice> tutti() const { return {punti_.data() + 1, punti_.size() - 1}; }
  std::span<vertice> tutti() { return {punti_.data() + 1, punti_.size() - 1}; }

 private:
  std::size_t verificato(int i) const {
    if (i < 0 || static_cast<std::size_t>(i) >= punti_.size()) fuoriintervallo();
    return static_cast<std::size_t>(i);
  }
  [[noreturn]] static void fuoriintervallo();

  std::vector<vertice> punti_ = std::vector<vertice>(1);
  std::vector<std::int16_t> segni_ = std::vector<std::int16_t>(1);
};

}  // namespace trelvo
