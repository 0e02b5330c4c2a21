// The command line of the frame, written from the state of a document. The texts are the program's only guidance.
#pragma once

#include <string>

#include "document/distipo.h"

namespace trelvo {

// First prompt of the command at `livello`, or of the idle engine; executes commands that wait for nothing.
void scrivilabel1(distipo& doc);
// Second prompt.
void scrivilabel2(distipo& doc);
// Report of a selection, after each of its steps.
void scrivitrov(distipo& doc);

// Entry fields: on is white and takes input, off is grey.
void accendi_Text1(distipo& doc);
void accendi_Text2(distipo& doc);
void spegni_Text1(distipo& doc);
void spegni_Text2(distipo& doc);

// Grows the records to index n, blanks that one's name, hides the shapes.
void reiniz(distipo& doc, int n);

}  // namespace trelvo
