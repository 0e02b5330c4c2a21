// Shows the selected objects of one class in their dialog.
#pragma once

#include <string>

#include "document/trelvobas.h"
#include "properties/selezionati.h"

namespace trelvo {

// The captions of a dialog's modes.
struct titoli_scelti {
  const char* uno;
  const char* molti;
};

// With none selected nothing happens. `inizio` is the label whose number starts the filling from one object;
// molti(collection, first) fills the dialog from several. None is selected afterwards.
template <class Classe, class Forma, class Molti>
void mostra_scelti(distipo& doc, int& contatore, Forma& f, Label& inizio, const titoli_scelti& titoli, Molti&& molti) {
  const collezione<Classe>& coll = collezione_di<Classe>(std::as_const(doc.dis));
  const scelti s = conta_scelti(coll);
  if (s.numero == 0) return;
  contatore = 1;
  f.Caption = s.numero == 1 ? titoli.uno : titoli.molti;
  inizio.Caption = std::to_string(s.primo);
  if (s.numero > 1) molti(coll, coll(s.primo));
  doc.bas.desktop.show_modal(f);
  per_scelti<Classe>(doc.dis, [](Classe& o) { o.stato = stato_presente; });
}

}  // namespace trelvo
