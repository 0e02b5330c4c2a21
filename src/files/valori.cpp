#include "files/valori.h"

#include <cmath>

#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::size_t larghezza_etichetta = 2;

enum etichetta : std::int16_t { etichetta_intero = 2, etichetta_doppio = 5, etichetta_testo = 8 };

template <class Numero>
Numero prendi_verificato(std::span<const std::byte> dati) {
  if (dati.size() < sizeof(Numero)) throw RuntimeError(error_past_end);
  return prendi<Numero>(dati.data());
}

template <class Numero>
void metti_numero(std::span<std::byte> slot, etichetta tipo, Numero valore) {
  metti<std::int16_t>(slot.data(), tipo);
  metti<Numero>(slot.data() + larghezza_etichetta, valore);
}

}  // namespace

void metti_testo(std::span<std::byte> slot, const std::string& testo) {
  const std::string byte = to_code_page(testo);
  const std::size_t n = std::min(byte.size(), slot.size() - larghezza_etichetta);
  metti<std::uint16_t>(slot.data(), static_cast<std::uint16_t>(n));
  std::memcpy(slot.data() + larghezza_etichetta, byte.data(), n);
}

std::string prendi_testo(std::span<const std::byte> slot) {
  const auto n = prendi_verificato<std::uint16_t>(slot);
  const auto dati = slot.subspan(larghezza_etichetta);
  if (n > dati.size()) throw RuntimeError(error_type);
  return from_code_page({reinterpret_cast<const char*>(dati.data()), n});
}

void metti_tipizzato(std::span<std::byte> slot, const valoretipizzato& valore) {
  if (const auto* intero = std::get_if<std::int16_t>(&valore)) {
    metti_numero(slot, etichetta_intero, *intero);
  } else if (const auto* doppio = std::get_if<double>(&valore)) {
    metti_numero(slot, etichetta_doppio, *doppio);
  } else {
    metti<std::int16_t>(slot.data(), etichetta_testo);
    metti_testo(slot.subspan(larghezza_etichetta), std::get<std::string>(valore));
  }
}

valoretipizzato prendi_tipizzato(std::span<const std::byte> slot) {
  const auto tipo = prendi_verificato<std::int16_t>(slot);
  const auto dati = slot.subspan(larghezza_etichetta);
  switch (tipo) {
    case etichetta_intero:
      return prendi_verificato<std::int16_t>(dati);
    case etichetta_doppio:
      return prendi_verificato<double>(dati);
    case etichetta_testo:
      return prendi_testo(dati);
    default:
      throw RuntimeError(error_type);
  }
}

valoretipizzato tipizzato(const indicecolore& colore) {
  if (colore.doppio) return static_cast<double>(colore.valore);
  return static_cast<std::int16_t>(colore.valore);
}

indicecolore colore_tipizzato(const valoretipizzato& valore) {
  if (std::holds_alternative<std::string>(valore)) throw RuntimeError(error_type);
  const bool doppio = std::holds_alternative<double>(valore);
  const double indice = doppio ? std::get<double>(valore) : std::get<std::int16_t>(valore);
  if (!(indice >= 0 && indice < numero_colori) || indice != std::floor(indice)) throw RuntimeError(error_bad_index);
  return {static_cast<int>(indice), doppio};
}

std::int32_t intero_tipizzato(const valoretipizzato& valore) {
  if (const auto* intero = std::get_if<std::int16_t>(&valore)) return *intero;
  const auto* doppio = std::get_if<double>(&valore);
  if (doppio == nullptr || *doppio != std::floor(*doppio)) throw RuntimeError(error_type);
  return round_to_int32(*doppio);
}

const std::string& testo_tipizzato(const valoretipizzato& valore) {
  const auto* testo = std::get_if<std::string>(&valore);
  if (testo == nullptr) throw RuntimeError(error_type);
  return *testo;
}

}  // namespace trelvo
