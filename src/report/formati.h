// How the characters and the paragraphs of a report look.
#pragma once

#include <string>

#include "platform/graphics.h"

namespace trelvo {

constexpr int scostamento_apice = 45;
constexpr int scostamento_pedice = -40;
constexpr int mezzipunti_minimi = 2;
constexpr int mezzipunti_massimi = 4320;
// An offset or an indent goes as far as this to either side, in twips.
constexpr int scostamento_massimo = 31680;

struct formatocarattere {
  std::string nome = "Arial";
  int mezzipunti = 20;  // size, in half points
  bool grassetto = false;
  bool corsivo = false;
  bool sottolineato = false;
  bool barrato = false;
  Color colore = 0;
  int scostamento = 0;  // twips above the line
  bool operator==(const formatocarattere&) const = default;
};

// The numbers are those of SelAlignment.
enum class allineamento { sinistra = 0, destra = 1, centro = 2, giustificato = 3 };

// Indents in twips; that of the first line counts from the left one.
struct formatoparagrafo {
  allineamento allinea = allineamento::sinistra;
  int sinistro = 0;
  int destro = 0;
  int primariga = 0;
  bool puntato = false;
  bool operator==(const formatoparagrafo&) const = default;
};

// What of a text can be the name of a font: nothing that ends a line or a name, 100 characters at most. May be empty.
std::string nome_di_carattere(const std::string& testo);

// A paragraph gets a bullet that hangs `rientro` twips in front of its text, or loses it with that room.
formatoparagrafo con_punto(formatoparagrafo formato, int rientro);
formatoparagrafo senza_punto(formatoparagrafo formato);

}  // namespace trelvo
