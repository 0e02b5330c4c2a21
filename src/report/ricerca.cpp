#include "report/ricerca.h"

#include <algorithm>

#include "report/caratteri.h"

namespace trelvo {

namespace {

bool uguali(char32_t a, char32_t b) { return a == b || minuscola(a) == minuscola(b); }

}  // namespace

std::size_t trova_da(std::u32string_view testo, const ricerca& cosa, std::size_t da) {
  if (cosa.maiuscole) return testo.find(cosa.cercato, da);
  const auto inizio = testo.begin() + static_cast<std::ptrdiff_t>(std::min(da, testo.size()));
  const auto trovato = std::search(inizio, testo.end(), cosa.cercato.begin(), cosa.cercato.end(), uguali);
  return trovato == testo.end() ? std::u32string_view::npos : static_cast<std::size_t>(trovato - testo.begin());
}

std::vector<std::size_t> trova_tutti(std::u32string_view testo, const ricerca& cosa) {
  std::vector<std::size_t> posti;
  for (std::size_t posto = trova_da(testo, cosa, 0); posto != std::u32string_view::npos;
       posto = trova_da(testo, cosa, posto + cosa.cercato.size())) {
    posti.push_back(posto);
  }
  return posti;
}

bool corrisponde(std::u32string_view testo, const ricerca& cosa) {
  return testo.size() == cosa.cercato.size() && trova_da(testo, cosa, 0) == 0;
}

}  // namespace trelvo
