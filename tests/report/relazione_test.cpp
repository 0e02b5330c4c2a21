#include "report/relazione.h"

#include <gtest/gtest.h>

#include "report/descrizione.h"
#include "report/relazione_casuale.h"

namespace trelvo {
namespace {

// The same report as one place a character, each with its formats.
class Plain {
 public:
  struct Place {
    char32_t character;  // 0 for the last mark
    formatocarattere format;
    formatoparagrafo paragraph;
  };
  std::vector<Place> places{{0, {}, {}}};

  void replace(std::size_t begin, std::size_t count, const std::u32string& text, const formatocarattere& format) {
    const formatoparagrafo first = places[begin].paragraph;
    const formatoparagrafo following = places[begin + count].paragraph;
    const bool parted = text.find(U'\n') != std::u32string::npos;
    places.erase(at(begin), at(begin + count));
    std::vector<Place> made;
    for (const char32_t c : text) made.push_back({c, format, first});
    places.insert(at(begin), made.begin(), made.end());
    // The rest of the paragraph that the text ends in.
    const std::size_t end = begin + text.size();
    const std::size_t last_break = text.rfind(U'\n');
    std::size_t from = parted ? begin + last_break + 1 : begin;
    while (from < end || from < places.size()) {
      places[from].paragraph = parted ? following : first;
      const char32_t c = places[from++].character;
      if (from > end && (c == U'\n' || c == 0)) break;
    }
    const bool opened = !text.empty() && text.back() == U'\n';
    if (opened && (places[end].character == U'\n' || places[end].character == 0)) places[end].format = format;
  }
  void check(const relazione& report) const {
    ASSERT_EQ(report.lunghezza() + 1, places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
      const char32_t c = i < report.lunghezza() ? report.testo()[i] : 0;
      ASSERT_EQ(c, places[i].character) << i;
      ASSERT_EQ(described(report.formato(i)), described(places[i].format)) << i;
      const auto& paragraph = report.paragrafi()[report.indice_paragrafo(i)];
      ASSERT_EQ(described(paragraph.formato), described(places[i].paragraph)) << i;
    }
  }

 private:
  std::vector<Place>::iterator at(std::size_t i) { return places.begin() + static_cast<std::ptrdiff_t>(i); }
};

TEST(Relazione, behavesLikeAListOfCharactersWithTheirFormats) {
  for (unsigned seed = 0; seed < 30; ++seed) {
    RandomReport random(seed);
    relazione report;
    Plain plain;
    for (int step = 0; step < 60; ++step) {
      const std::size_t begin = random.below(report.lunghezza() + 1);
      const std::size_t count = random.below(std::min<std::size_t>(report.lunghezza() - begin, 12) + 1);
      const formatocarattere format = random.character();
      switch (random.below(3)) {
        case 0: {
          const std::u32string text = random.text(6);
          report.sostituisci(begin, count, text, format);
          plain.replace(begin, count, text, format);
          break;
        }
        case 1: {
          report.cambia_caratteri(begin, count, [](formatocarattere& f) { f.grassetto = !f.grassetto; });
          for (std::size_t i = begin; i < begin + count; ++i) plain.places[i].format.grassetto ^= true;
          break;
        }
        default: {
          const formatoparagrafo wanted = random.paragraph();
          const std::size_t first = report.indice_paragrafo(begin);
          const std::size_t last = report.indice_paragrafo(count > 0 ? begin + count - 1 : begin);
          report.cambia_paragrafi(begin, count, [&](formatoparagrafo& f) { f = wanted; });
          for (std::size_t i = 0; i < plain.places.size(); ++i) {
            const std::size_t own = report.indice_paragrafo(i);
            if (own >= first && own <= last) plain.places[i].paragraph = wanted;
          }
        }
      }
      ASSERT_EQ(fault_of(report), "") << "seed " << seed << " step " << step;
      plain.check(report);
      if (HasFatalFailure()) FAIL() << "seed " << seed << " step " << step;
    }
  }
}

TEST(Relazione, growsAtItsEndAsByReplacing) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    RandomReport random(seed);
    relazione appended;
    relazione replaced;
    for (int step = 0; step < 20; ++step) {
      const std::u32string text = random.text(5);
      const formatocarattere format = random.character();
      appended.aggiungi(text, format);
      replaced.sostituisci(replaced.lunghezza(), 0, text, format);
      // The mark of an opened paragraph follows what was typed, not what was read.
      replaced.formato_ultimo(formatocarattere{});
      ASSERT_EQ(described(appended), described(replaced)) << seed;
      ASSERT_EQ(fault_of(appended), "") << seed;
    }
  }
}

TEST(Relazione, typedTextTakesTheFormatOfWhatStandsBeforeItInItsParagraph) {
  formatocarattere bold;
  bold.grassetto = true;
  formatocarattere italic;
  italic.corsivo = true;
  relazione report;
  report.aggiungi(U"ab\n", bold);
  report.aggiungi(U"c\n", italic);
  const struct {
    std::size_t place;
    const char* format;
  } cases[] = {{0, "{Arial 10 b}"}, {2, "{Arial 10 b}"}, {3, "{Arial 10 i}"}, {4, "{Arial 10 i}"}, {5, "{Arial 10}"}};
  for (const auto& c : cases) EXPECT_EQ(described(report.formato_inserimento(c.place)), c.format) << c.place;
}

TEST(Formati, aBulletHangsInFrontOfTheTextAndLeavesWithItsRoom) {
  formatoparagrafo plain;
  plain.sinistro = 100;
  const formatoparagrafo marked = con_punto(plain, 360);
  EXPECT_EQ(described(marked), "[l460 f-360 *]");
  EXPECT_EQ(described(con_punto(marked, 200)), "[l300 f-200 *]");
  EXPECT_EQ(described(senza_punto(marked)), "[l100]");
}

TEST(Caratteri, textsAreCleanedAndCapitalsHaveSmallLetters) {
  const struct {
    const char* name;
    std::u32string raw;
    std::u32string clean;
  } cases[] = {
      {"ends of lines", U"a\r\nb\rc\nd\u2029e\ff", U"a\nb\nc\nd\ne\nf"},
      {"line break", U"a\vb", U"a\u2028b"},
      {"tab", U"a\tb", U"a\tb"},
      {"controls", std::u32string(U"a\0b\x7F", 4), U"a\uFFFDb\uFFFD"},
      {"no characters",
       {U'a', 0xD800, 0xFFFE, 0x1FFFF, 0xFDD0, 0xFFFC, 0x110000},
       U"a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
  };
  for (const auto& c : cases) EXPECT_EQ(in_utf8(ripulito(c.raw)), in_utf8(c.clean)) << c.name;

  const std::u32string capitals = U"AZÀÞ×ĀŻŹŸΑΩЖЀẞ1";
  const std::u32string small = U"azàþ×āżźÿαωжѐẞ1";
  for (std::size_t i = 0; i < capitals.size(); ++i) EXPECT_EQ(minuscola(capitals[i]), small[i]) << i;
  for (const char32_t c : small) EXPECT_EQ(minuscola(c), c);
}

}  // namespace
}  // namespace trelvo
