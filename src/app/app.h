// The program's face to whoever drives it, the window system or a script: start and stop, the life of documents, and
// the events that do not come through a control of a form.
#pragma once

#include <string>

#include "commands/puntatore.h"
#include "document/trelvobas.h"

namespace trelvo {

// Links the handlers of the frame and of the dialogs. Once, before anything else.
void prepara(trelvobas& bas);

// Shows the frame; `riga` is the command line: empty, or the name of a file, with or without quotation marks.
void Main(trelvobas& bas, const std::string& riga);

// What every event of the user ends with: a dialog that stood aside for nothing any more comes back, and closed windows
// are released after the outermost event.
void fine_evento(trelvobas& bas);

// Runs one event of the user: a run-time error in it is shown.
template <class Azione>
void evento(trelvobas& bas, Azione&& azione) {
  ++bas.eventi;
  run_event(bas.desktop, azione);
  --bas.eventi;
  fine_evento(bas);
}

void nuovodisegno(trelvobas& bas);

// The window system brought a document to the front: the former one is deactivated, this one activated.
void attivata(trelvobas& bas, distipo& doc);

// Asks and closes a document, the frame with all its documents; false if the user refused.
bool chiudi(distipo& doc);
bool chiudi_frame(trelvobas& bas);

// The client area took another size, in logical units.
void ridimensiona(distipo& doc, float larghezza, float altezza);

// The mouse: Form_MouseMove and Form_MouseDown of commands/puntatore.h, and these.
void Picture3_MouseMove(distipo& doc);
void Picture4_MouseMove(distipo& doc);
// The mouse left the drawing for the frame.
void MDIForm_MouseMove(trelvobas& bas);

// Keys in a document's window; code of a character, code of a key. Shortcut keys of menu items click the item.
void Form_KeyPress(distipo& doc, int KeyAscii);
void Form_KeyDown(distipo& doc, int KeyCode);

// Clicks a menu item as the user does: its menu opens first, with its enabling. False if it is disabled or a separator.
bool scegli(MenuItem& voce);

}  // namespace trelvo
