// The vertex lists in the dialogs of lines and of surfaces, and the dialog `CoordVert` that edits one vertex.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "document/trelvobas.h"
#include "model/vertice.h"

namespace trelvo {

// Links the handlers of `CoordVert`. Once.
void prepara_CoordVert(trelvobas& bas);

// Links the lists and the buttons of a dialog. `dopo` runs after each change of the lists.
void prepara_elenco(trelvobas& bas, elencoform& elenco, const std::function<void()>& dopo);

// Three decimals, in ten characters.
void riempi_elenco(const trelvobas& bas, elencoform& elenco, std::span<const vertice> vertici);

// The vertices that the lists hold. Errors 13, 6; error 6 too for more of them than an object can have.
std::vector<vertice> vertici_di(const trelvobas& bas, const elencoform& elenco);

// A coordinate as the dialogs show it: three decimals, regional.
std::string coordinata(const trelvobas& bas, double valore);
// A box by the regional settings. Errors 13, 6.
double coordinata_di(const trelvobas& bas, const TextBox& casella);

// A key handler that turns a typed point into the decimal separator of the regional settings, and hands the keyboard
// on at Enter.
std::function<void(int& codice)> tasto_coordinata(trelvobas& bas, std::function<Control*()> prossimo);

// Runs `azione` when the user confirms `CoordVert` with numbers in its boxes.
void mostra_CoordVert(trelvobas& bas, std::function<void()> azione);

}  // namespace trelvo
