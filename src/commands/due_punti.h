// What the drawing commands share: collecting two points, prompts, and the end of a command.
#pragma once

#include <string>

#include "commands/comando.h"

namespace trelvo {

// Snap at every step.
bool sempre(const distipo& doc);

void scrivi_prompt(distipo& doc, const char* testo_prompt);
std::string al_punto(const distipo& doc);

// The end of a drawing command whose level is used again.
void concludi_comando(distipo& doc, const char* nome);

// First point of a line, a circle or a measure: what each keeps of it besides the record. Drawing units.
using primopunto = void (*)(distipo&, double a, double b);
// Second point, after the orthogonal constraint: fills x2, y2 of the record.
using secondopunto = void (*)(distipo&, double a, double b);

// A click at either step; coincident points beep and wait.
void clic_due_punti(distipo& doc, float X, float Y, primopunto primo, secondopunto secondo);
void secondo_nel_record(distipo& doc, double a, double b);

// Where the mode of selection or the step asks for the orthogonal constraint in a preview.
bool orto_secondo_modo(const distipo& doc);

}  // namespace trelvo
