// The text box of the report editor: a report, the selected part of it, and what can be done to that.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "report/relazione.h"

namespace trelvo {

// Who shows the text of a box hears here what the program does to it.
class vistatesto {
 public:
  virtual ~vistatesto() = default;
  // Characters gave way to others; a text that was loaded takes the place of all.
  virtual void sostituito(std::size_t inizio, std::size_t tolti, std::size_t messi) = 0;
  virtual void caricato() = 0;
  // Characters, or the paragraphs they are in, took another format.
  virtual void formattati(std::size_t inizio, std::size_t lunghezza) = 0;
  virtual void paragrafi_formattati(std::size_t inizio, std::size_t lunghezza) = 0;
  // Another selection, or another format of what is typed next.
  virtual void selezionato() = 0;
};

// Positions count characters; the end of a paragraph is one. Numbers outside of what a property can hold raise error 5,
// positions behind the end mean the end.
//
// Of a selection with several formats, the truths tell whether all of it has them, SelCharOffset is 0, and the others
// are those of its first character or paragraph. An empty selection tells what is typed there.
class RichTextBox : public Control {
 public:
  RichTextBox(Form& owner, std::string control);

  const relazione& documento() const { return testo_; }
  std::size_t inizio() const { return inizio_; }
  std::size_t lunghezza() const { return lunghezza_; }
  formatocarattere formato() const;
  formatoparagrafo formato_paragrafo() const;

  void seleziona(std::size_t inizio, std::size_t lunghezza);
  // In the place of the selection, in the format of its first character; the caret goes behind it.
  void scrivi(std::u32string_view testo);
  // Deletes the selection, or the character before the caret.
  void cancella_indietro();
  void cambia(const std::function<void(formatocarattere&)>& come);
  void cambia_paragrafi(const std::function<void(formatoparagrafo&)>& come);
  // All the places where `lunghezza` characters are to be replaced, in order and apart from each other.
  void sostituisci(const std::vector<std::size_t>& posti, std::size_t lunghezza, std::u32string_view testo);

  // The whole text is another one; the selection goes to its beginning.
  void metti(relazione testo);
  // Rich or plain text. RuntimeError if the file cannot be read; the text stays.
  void LoadFile(const std::string& nome);
  // RuntimeError if it cannot be written; an older file stays as it was.
  void SaveFile(const std::string& nome) const;

  // What the user did in the window: characters gave way to others with these formats, and the paragraphs from the one
  // at `inizio` on have those.
  void modificato(std::size_t inizio, std::size_t tolti, std::u32string_view testo,
                  const std::vector<relazione::tratto>& formati, const std::vector<formatoparagrafo>& paragrafi);

  std::function<void()> Change;
  std::function<void()> SelChange;
  vistatesto* vista = nullptr;

  LinkedProperty<std::string> Text;
  LinkedProperty<std::string> SelText;
  LinkedProperty<int> SelStart;
  LinkedProperty<int> SelLength;
  LinkedProperty<int> SelAlignment;
  LinkedProperty<bool> SelBullet;
  // Twips that a bullet hangs in front of its text. Setting it moves the bullets of the selection.
  LinkedProperty<int> BulletIndent;
  LinkedProperty<int> SelCharOffset;  // twips
  LinkedProperty<std::string> SelFontName;
  LinkedProperty<float> SelFontSize;  // points; to the nearest half
  LinkedProperty<bool> SelBold;
  LinkedProperty<bool> SelItalic;
  LinkedProperty<bool> SelUnderline;
  LinkedProperty<bool> SelStrikeThru;
  LinkedProperty<Color> SelColor;
  Property<Color> BackColor{*this, "BackColor", 0xFFFFFF};
  Property<std::string> FileName{*this, "FileName", ""};

 private:
  LinkedProperty<bool> qualita(const char* nome, bool formatocarattere::*quale);
  void cambiato();
  void selezione_cambiata();
  void sostituisci_selezione(std::u32string_view testo);

  relazione testo_;
  std::size_t inizio_ = 0;
  std::size_t lunghezza_ = 0;
  int rientro_punto_ = 0;
  // Chosen for what is typed next, where nothing is selected.
  std::optional<formatocarattere> prossimo_;
};

}  // namespace trelvo
