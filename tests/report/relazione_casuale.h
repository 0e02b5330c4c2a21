// Reports made up at random, from a seed.
#pragma once

#include <iterator>
#include <random>

#include "report/relazione.h"

namespace trelvo {

class RandomReport {
 public:
  explicit RandomReport(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }
  bool chance(std::size_t of) { return below(of) == 0; }

  std::u32string text(std::size_t most) {
    static const std::u32string characters = U"abc XYZ\n\n\t\\{};à€•\u2028\u00A0\u4E2D\U0001F600\u0085\u0401";
    std::u32string made;
    for (std::size_t length = below(most + 1); length > 0; --length) made += characters[below(characters.size())];
    return made;
  }
  formatocarattere character() {
    static const char* const names[] = {"Arial", "Courier New", "Caratteri; {strani} \\ à", "\xE4\xB8\xAD\xE6\x96\x87"};
    static const int offsets[] = {0, 0, 45, -40, 50, -3, 7};
    static const Color colors[] = {0, 0xFF, 0x123456};
    return {names[below(2 + 2 * below(2))],
            static_cast<int>(2 + below(60)),
            chance(2),
            chance(3),
            chance(3),
            chance(4),
            colors[below(3)],
            offsets[below(std::size(offsets))]};
  }
  formatoparagrafo paragraph() {
    formatoparagrafo made;
    made.allinea = static_cast<allineamento>(below(4));
    if (chance(2)) made.sinistro = static_cast<int>(below(3000));
    if (chance(3)) made.destro = static_cast<int>(below(3000));
    if (chance(2)) made.primariga = static_cast<int>(below(1000)) - 500;
    made.puntato = chance(3);
    return made;
  }
  relazione report(int pieces) {
    relazione made;
    for (; pieces > 0; --pieces) made.aggiungi(text(8), character());
    std::size_t place = 0;
    const std::size_t count = made.paragrafi().size();
    for (std::size_t i = 0; i < count; ++i) {
      const formatoparagrafo format = paragraph();
      made.cambia_paragrafi(place, 0, [&](formatoparagrafo& f) { f = format; });
      place += made.paragrafi()[i].lunghezza;
    }
    return made;
  }

 private:
  std::mt19937 random_;
};

}  // namespace trelvo
