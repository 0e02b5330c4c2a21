// One row of the table of commands, and the table itself. The engine knows rows, not commands: a new command is a new
// row with its functions.
#pragma once

#include <string>
#include <vector>

#include "document/trelvobas.h"

namespace trelvo {

enum class genere {
  disegno,    // collects points and adds an object
  misura,     // collects points and tells
  modifica,   // selects objects, then collects points
  zoom,       // may run in the middle of another command
  areastampa  // window of the area to print
};

struct comando {
  std::string nome;
  genere tipo = genere::disegno;

  // First prompt: writes the frame's Label1 and prepares what the command collects into.
  void (*primoprompt)(distipo&) = nullptr;
  // Executed by the first prompt, without waiting for a point.
  bool immediato = false;
  // Text of the second prompt.
  std::string (*secondoprompt)(const distipo&) = nullptr;
  // Text of the second prompt while a selection waits for its confirmation; nullptr keeps what stands there.
  const char* conferma = nullptr;

  // A left click or a typed point, logical units.
  void (*clic)(distipo&, float& X, float& Y) = nullptr;
  // A right click ends the command by executing it, at the present step.
  bool (*destro_esegue)(const distipo&) = nullptr;
  // A right click confirms the selection at the present step; `base` is the prompt of the point that comes next.
  bool (*destro_conferma)(const distipo&) = nullptr;
  const char* base = nullptr;
  // In place of cancelling at a right click.
  void (*destro_altrimenti)(distipo&) = nullptr;
  // Esc throws the command away instead of acting as a right click.
  bool esc_annulla = false;

  // Performs the command of level n; n is the document's own `livello`.
  void (*esegui)(distipo&, int& n) = nullptr;

  // The preview that follows the pointer from the first point on.
  void (*anteprima)(distipo&, double x1, double y1, float& x2, float& y2) = nullptr;
  // Object snap is allowed at the present step.
  bool (*aggancio)(const distipo&) = nullptr;

  // Keeps the object in progress while a zoom runs.
  void (*accantona)(distipo&) = nullptr;
  // Takes the command up again: before its step is put back, and after.
  void (*riprendi)(distipo&) = nullptr;
  void (*riprendi_passo)(distipo&) = nullptr;
};

// The rows of the commands of this floor; the floors above add theirs at start.
void aggiungi_comandi(trelvobas& bas);

// nullptr for a name that is none, and for an idle engine.
const comando* trova_comando(const trelvobas& bas, const std::string& nome);
const comando* comando_corrente(const distipo& doc);

}  // namespace trelvo
