// The colours and aids that a drawing brings along.
#pragma once

#include <string>

#include "document/distipo.h"
#include "files/errore_rimandato.h"

namespace trelvo {

// Pitches in drawing units.
struct impostazionilette {
  indicecolore coloresfondo;
  indicecolore colorepuntatore;
  std::string statostep;
  float passostep = 0;
  std::string statogriglia;
  float passogriglia = 0;
};

// Takes them into the document, whatever its aids were before, and writes the settings; what goes wrong with that is
// noted in `errore`.
void prendi_impostazioni(distipo& doc, const impostazionilette& lette, errorerimandato& errore);

// Puts all settings of a document back.
void rimetti_impostazioni(distipo& doc, const impostazioni& prima, errorerimandato& errore);

}  // namespace trelvo
