// The report editor: a window of its own with one rich text document.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/desktop.h"
#include "report/richtextbox.h"
#include "report/rientri.h"
#include "report/trova.h"

namespace trelvo {

// A button of the tool bar; what it stands for holds of the selection while Value is true.
struct pulsante : Control {
  pulsante(Form& owner, std::string control, int position, std::string nome, std::string immagine, bool resta,
           int tasto)
      : Control(owner, std::move(control), position),
        Caption(*this, "Caption", std::move(nome)),
        icona(std::move(immagine)),
        stays(resta),
        shortcut(tasto) {}
  Property<std::string> Caption;
  Property<bool> Value{*this, "Value", false};
  const std::string icona;
  const bool stays;    // pressed, while Value is true
  const int shortcut;  // of a button that no menu repeats, as a menu's
};

struct videoscritt : Form {
  // `programma` is the program's folder.
  videoscritt(Desktop& scrivania, std::string programma);

  Desktop& desktop;
  const std::string cartella;
  std::string nomedocumento;
  int testomodificato = 0;

  RichTextBox RichTextBox1{*this, "RichTextBox1"};
  ControlArray<pulsante> Toolbar1;  // an index that is not there is a separator

  MenuItem mnufile{*this, "mnufile", no_index, "&File", nullptr};
  ControlArray<MenuItem> file;
  MenuItem mnumodifica{*this, "mnumodifica", no_index, "&Modifica", nullptr};
  ControlArray<MenuItem> modifi;
  MenuItem mnuformato{*this, "mnuformato", no_index, "F&ormato", nullptr};
  MenuItem testo{*this, "testo", no_index, "Testo", &mnuformato};
  MenuItem carattere{*this, "carattere", no_index, "Carattere", &testo, key_control + 'D'};
  MenuItem mnucolor{*this, "mnucolor", no_index, "Colore", &testo};
  MenuItem paragrafo{*this, "paragrafo", no_index, "Paragrafo", &mnuformato};
  ControlArray<MenuItem> allinea;
  MenuItem apice{*this, "apice", no_index, "Apice", &mnuformato, key_control + key_shift + 'P'};
  MenuItem pedice{*this, "pedice", no_index, "Pedice", &mnuformato, key_control + key_shift + 'B'};
  MenuItem sfondo{*this, "sfondo", no_index, "Colore Sfondo", &mnuformato};

  CommonDialog CommonDialog1;
  trovaForm trova;
  rientriForm rientri;
};

// Brings the window up, empty or with a file; one that cannot be read is told, and the window stays empty.
void apri_relazione(videoscritt& v, const std::string& nome);

// "Apri", "Salva", "SalvaConNome". A save that fails ends silently, and `testomodificato` stays.
void aprisalva(videoscritt& v, const std::string& comando);

// Asks whether to save what was changed, and saves. False if the user cancelled or it could not be saved.
bool salva_modifiche(videoscritt& v);

// Shows what holds of the selection in the tool bar.
void statopulsanti(videoscritt& v);

// By the index of the item: the menus `file`, `modifi`, `allinea`.
void file_Click(videoscritt& v, int Index);
void modifi_Click(videoscritt& v, int Index);
void allinea_Click(videoscritt& v, int Index);

// Links the handlers of the window's own controls.
void collega_videoscritt(videoscritt& v);

// " [ ...] " for a new document, "[Nome File:  ... ]" for one that has a file.
std::string titolo_nuovo(const std::string& nome);
std::string titolo_file(const std::string& nome);

}  // namespace trelvo
