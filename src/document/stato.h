// The state of one document window, one struct a subsystem.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "document/reccomando.h"

namespace trelvo {

// Command engine. Index 0 of `comandi` is never a command; those below `livello` are the history, that at `livello`
// runs.
struct statocomandi {
  std::vector<reccomando> comandi{2};
  int livello = 1;
  int passo = 0;
  std::string ultimocomando;
  reccomando comandosospeso;
  std::string modoselez = "Inters";
  int ntrovati = 0;
  int modificato = 0;
  int statooggetti = 0;
  int statotesti = 0;

  reccomando& corrente() { return comandi[static_cast<std::size_t>(livello)]; }
  const reccomando& corrente() const { return comandi[static_cast<std::size_t>(livello)]; }
  // Name of the running command, empty when idle.
  const std::string& comando() const { return corrente().tipo(); }
};

// View. `rapscala` is logical units per drawing unit; the memorised view and the extents are in drawing units.
struct statovista {
  double rapscala = 1;
  float xminvis = 0;
  float yminvis = 0;
  float larghezzavis = 0;
  float altezzavis = 0;
  double xmindis = 0;
  double ymindis = 0;
  double xmaxdis = 0;
  double ymaxdis = 0;
  std::int32_t zoompercento = 0;
  std::int16_t valoreprecH = 0;
  std::int16_t valoreprecV = 0;
};

// A palette index that keeps the form in which it is written: a 16-bit integer, or a double once a dialog set it.
struct indicecolore {
  int valore = 0;
  bool doppio = false;
};

constexpr const char* acceso = "ON";
constexpr const char* spento = "OFF";

// Aids and colours. Pitches in drawing units.
struct impostazioni {
  std::string statostep = acceso;
  float passostep = 1;
  std::string statogriglia = acceso;
  float passogriglia = 1;
  std::string statoorto = spento;
  std::int16_t bordotesto = 0;
  indicecolore coloresfondo{15};
  indicecolore colorepuntatore{5};
  indicecolore colorecontrasto{3};

  bool step() const { return statostep == acceso; }
  bool griglia() const { return statogriglia == acceso; }
  bool orto() const { return statoorto == acceso; }
};

// Object snap. The point is in drawing units, the time in seconds since midnight.
struct statofiltro {
  int filtroattivo = 0;
  std::int16_t trovatofiltro = 0;
  double xfiltro = 0;
  double yfiltro = 0;
  float ultimofiltro = 0;
};

// What a new text takes.
struct predefinititesto {
  std::string carattereDef = "Arial";
  std::int32_t dimensionetestodef = 10;
  std::int16_t boldtestodef = 0;
  std::int16_t corsivotestodef = 0;
  std::int16_t barratotestodef = 0;
  std::int16_t sottolineatotestodef = 0;
  std::int32_t coloretestodef = 0;
  std::int16_t opacotestodef = 0;
  std::int32_t coloreopacotestodef = 0xFFFFFF;
};

// Sheet units per drawing unit, the drawing point at the sheet's origin, the sheet in centimetres and its picture in
// millimetres.
struct statostampa {
  double larghcarta = 0;
  double altezcarta = 0;
  float larghanteprima = 0;
  float altezanteprima = 0;
  double scalastampa = 1;
  double origstampax = 0;
  double origstampay = 0;
};

// Visibility of the bars, 1 or 0: status strip, command line, toolbars, horizontal and vertical scroll bar.
struct statobarre {
  std::array<std::int16_t, 6> barra{0, 1, 1, 1, 1, 1};  // from 1
};

}  // namespace trelvo
