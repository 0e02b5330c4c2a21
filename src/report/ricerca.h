// Looking for a text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelvo {

struct ricerca {
  std::u32string cercato;  // not empty
  bool maiuscole = false;  // capitals and small letters differ
};

// The first place from `da` on, npos for none.
std::size_t trova_da(std::u32string_view testo, const ricerca& cosa, std::size_t da);
// All of them, none within another.
std::vector<std::size_t> trova_tutti(std::u32string_view testo, const ricerca& cosa);
bool corrisponde(std::u32string_view testo, const ricerca& cosa);

}  // namespace trelvo
