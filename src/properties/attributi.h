// The attributes that the two dialogs of outlines set, read once and then given to objects: nothing for "Vari".
#pragma once

#include <optional>
#include <tuple>

#include "model/oggetti.h"

namespace trelvo {

struct attributi_contorno {
  std::optional<std::int32_t> colore;
  std::optional<float> spessore;
  std::optional<std::int32_t> tratto;
};

struct attributi_campitura {
  std::optional<std::int32_t> campitura;
  std::optional<std::int32_t> colore;
};

// The fields of an outline under one name for all classes.
inline auto contorno_di(const Linea& o) { return std::tie(o.colorelinea, o.speslinea, o.TipoLinea); }
inline auto contorno_di(Linea& o) { return std::tie(o.colorelinea, o.speslinea, o.TipoLinea); }
template <class Classe>
auto contorno_di(Classe& o) {
  return std::tie(o.colcont, o.spescont, o.trattcont);
}

template <class Classe>
void dai(Classe& o, const attributi_contorno& a) {
  auto [colore, spessore, tratto] = contorno_di(o);
  colore = a.colore.value_or(colore);
  spessore = a.spessore.value_or(spessore);
  tratto = a.tratto.value_or(tratto);
}

template <class Classe>
void dai(Classe& o, const attributi_campitura& a) {
  o.campitura = a.campitura.value_or(o.campitura);
  o.colocampitura = a.colore.value_or(o.colocampitura);
}

}  // namespace trelvo
