// Reports as text, for comparison: a paragraph a line.
#pragma once

#include <string>

#include "report/caratteri.h"
#include "report/relazione.h"

namespace trelvo {

// "[c l360 f-360 r20 *]" for what is not plain about the paragraph, then its runs, each with what is not plain about it
// in braces: "{Arial 10 bius #FF0000 +45}". Spaces of the text stand as they are, line breaks as "|".
inline std::string described(const formatocarattere& f) {
  std::string text = "{" + f.nome + " " + std::to_string(f.mezzipunti / 2) + (f.mezzipunti % 2 != 0 ? ".5" : "");
  std::string marks;
  if (f.grassetto) marks += 'b';
  if (f.corsivo) marks += 'i';
  if (f.sottolineato) marks += 'u';
  if (f.barrato) marks += 's';
  if (!marks.empty()) text += " " + marks;
  if (f.colore != 0) text += " " + std::to_string(f.colore);
  if (f.scostamento != 0) text += (f.scostamento > 0 ? " +" : " ") + std::to_string(f.scostamento);
  return text + "}";
}

inline std::string described(const formatoparagrafo& f) {
  std::string text;
  if (f.allinea != allineamento::sinistra) text += std::string(1, "lrcj"[static_cast<int>(f.allinea)]) + " ";
  if (f.sinistro != 0) text += "l" + std::to_string(f.sinistro) + " ";
  if (f.primariga != 0) text += "f" + std::to_string(f.primariga) + " ";
  if (f.destro != 0) text += "r" + std::to_string(f.destro) + " ";
  if (f.puntato) text += "* ";
  if (text.empty()) return text;
  text.back() = ']';
  return "[" + text;
}

inline std::string described(const relazione& report) {
  std::string text;
  std::size_t place = 0;
  for (const relazione::paragrafo& paragraph : report.paragrafi()) {
    text += described(paragraph.formato);
    for (const std::size_t end = place + paragraph.lunghezza - 1; place < end;) {
      const formatocarattere& format = report.formato(place);
      text += described(format);
      while (place < end && report.formato(place) == format) {
        const char32_t c = report.testo()[place++];
        text += c == a_capo ? "|" : in_utf8(std::u32string_view(&c, 1));
      }
    }
    ++place;
    text += "\n";
  }
  return text;
}

// What holds of every report; empty if it does.
inline std::string fault_of(const relazione& report) {
  std::size_t places = 0;
  for (std::size_t i = 0; i < report.tratti().size(); ++i) {
    const relazione::tratto& run = report.tratti()[i];
    if (run.lunghezza == 0) return "an empty run";
    if (i > 0 && report.tratti()[i - 1].formato == run.formato) return "two equal runs";
    places += run.lunghezza;
  }
  if (places != report.lunghezza() + 1) return "runs that do not cover the text";
  if (ripulito(report.testo()) != report.testo()) return "characters that a report does not have";
  std::size_t place = 0;
  for (const relazione::paragrafo& paragraph : report.paragrafi()) {
    const std::size_t end = report.testo().find(fine_paragrafo, place);
    place += paragraph.lunghezza;
    if (place != (end == std::u32string::npos ? report.lunghezza() : end) + 1)
      return "paragraphs that miss their marks";
  }
  return place == report.lunghezza() + 1 ? "" : "paragraphs that do not cover the text";
}

}  // namespace trelvo
