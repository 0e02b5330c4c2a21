// The modes of selection of the edit commands.
#pragma once

namespace trelvo {

constexpr const char* modo_oggetto = "Ogget";
constexpr const char* modo_finestra = "Fines";
constexpr const char* modo_intersezione = "Inters";

}  // namespace trelvo
