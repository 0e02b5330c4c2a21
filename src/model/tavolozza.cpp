#include "model/tavolozza.h"

#include <algorithm>
#include <array>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

struct voce {
  const char* nome;
  Color colore;
};

constexpr std::array<voce, numero_colori> voci{{
    {"Nero", rgb(0, 0, 0)},
    {"Blu Scuro", rgb(0, 0, 128)},
    {"Verde", rgb(0, 128, 0)},
    {"Verde Acqua", rgb(0, 128, 128)},
    {"Bordeaux", rgb(128, 0, 0)},
    {"Viola", rgb(128, 0, 128)},
    {"Verde Oliva", rgb(128, 128, 0)},
    {"Grigio Chiaro", rgb(192, 192, 192)},
    {"Grigio", rgb(128, 128, 128)},
    {"Blu", rgb(0, 0, 255)},
    {"Verde Limone", rgb(0, 255, 0)},
    {"Azzurro", rgb(0, 255, 255)},
    {"Rosso", rgb(255, 0, 0)},
    {"Fucsia", rgb(255, 0, 255)},
    {"Giallo", rgb(255, 255, 0)},
    {"Bianco", rgb(255, 255, 255)},
}};

const voce& voce_di(int indice) {
  if (indice < 0 || indice >= numero_colori) throw RuntimeError(error_bad_index);
  return voci[static_cast<std::size_t>(indice)];
}

}  // namespace

Color tavolozza(int indice) { return voce_di(indice).colore; }

int indice_tavolozza(Color colore) {
  const auto trovata = std::find_if(voci.begin(), voci.end(), [&](const voce& v) { return v.colore == colore; });
  return trovata == voci.end() ? -1 : static_cast<int>(trovata - voci.begin());
}

const char* nome_colore(int indice) { return voce_di(indice).nome; }

}  // namespace trelvo
