// The drawing file: slots of 242 bytes. The first 11 are the header, the others object records.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "document/reccomando.h"
#include "document/stato.h"
#include "files/errore_rimandato.h"

namespace trelvo {

constexpr std::size_t lunghezza_slot = 242;
constexpr std::size_t slot_testata = 11;
constexpr std::size_t lunghezza_testata = slot_testata * lunghezza_slot;

// Places in an object record. A point is x and y, one after the other.
constexpr std::size_t posto_tipo = 0;
constexpr std::array<std::size_t, 4> posto_punto{0, 40, 56, 72};  // from 1
constexpr std::size_t posto_colore1 = 88;
constexpr std::size_t posto_colore2 = 92;
constexpr std::size_t posto_tratto = 96;
constexpr std::size_t posto_riemp = 100;
constexpr std::size_t posto_spessore = 104;
constexpr std::size_t posto_stringa = 108;
constexpr std::size_t lunghezza_stringa = 132;
constexpr std::size_t lunghezza_carattere = 32;  // of the font name, at the start of the text field
constexpr std::size_t posto_nvertici = 240;
constexpr int vertici_per_record = 3;

constexpr std::string_view tipo_linea = "Linea";
constexpr std::string_view tipo_superficie = "Superficie";
constexpr std::string_view tipo_polilinea = "Polilinea";
constexpr std::string_view tipo_arco = "Arco";
constexpr std::string_view tipo_cerchio = "Cerchio";
constexpr std::string_view tipo_rettangolo = "Rettangolo";
constexpr std::string_view tipo_testo = "Testo";
constexpr std::string_view tipo_continua_superficie = "ContinuaSuperficie";
constexpr std::string_view tipo_continua_polilinea = "ContinuaPolilinea";
constexpr std::string_view tipo_continua_rettangolo = "ContinuaRettangolo";

// View and pitches in drawing units.
struct testatadis {
  float xminvis = 0;
  float yminvis = 0;
  float larghezzavis = 0;
  float altezzavis = 0;
  int windowstate = 0;
  indicecolore coloresfondo;
  indicecolore colorepuntatore;
  std::string statostep;
  float passostep = 0;
  std::string statogriglia;
  float passogriglia = 0;
};

// The image of an object record as a command's: the scratch record holds the last one that was read or written.
reccomando immagine(const std::byte* record);

std::array<std::byte, lunghezza_testata> codifica(const testatadis& testata);

// `dati` is the start of the file, short if the file is. A value that is not there at all becomes zero or an empty
// text; one that cannot be one stays as `testata` has it, and is noted in `errore`: 6 for a pitch that is not finite,
// 9 for a colour off the palette, 13 for another type.
void decodifica(std::span<const std::byte> dati, testatadis& testata, errorerimandato& errore);

}  // namespace trelvo
