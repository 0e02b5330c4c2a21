// The command engine: what starts, executes, cancels, suspends and resumes the commands of a document, whatever they
// are. Points are in logical units; a command's level is its place in the records.
#pragma once

#include <functional>
#include <string>

#include "document/distipo.h"

namespace trelvo {

// Starts a command by its name, cancelling the running one.
void avvia_comando(distipo& doc, const std::string& nome);
void opdis_Click(distipo& doc, int Index);
void mnudistanza_Click(distipo& doc);

// Performs the command at level n, which is the document's own `livello`; resumes a suspended one.
void eseguicomando(distipo& doc, int& n);
// Cancels it; -1 stands for `livello`. Keeps the selection while a command is suspended.
void annullacomando(distipo& doc, int n);

// A left click or a typed point; a right click or Enter; a key in the window.
void clicksin(distipo& doc, float& X, float& Y);
void clickdes(distipo& doc);
void gestastiera(distipo& doc, int KeyAscii);

// Puts the running command aside, and takes it up again.
void sospendi(distipo& doc);
void ripristinatrasparente(distipo& doc);
// Gives up the command that is put aside, with what it had selected: another one starts, or the window is left.
void abbandona_sospeso(distipo& doc);

// Does something that repaints or moves the view with the running command put aside, and taken up again after it.
void con_comando_da_parte(distipo& doc, const std::function<void()>& azione);

}  // namespace trelvo
