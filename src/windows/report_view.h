// The text of a report in its window. The report is the truth: what the program does to it is shown here, and what the
// user does here is told to it, character by character and format by format.
#pragma once

#include <QTextCursor>
#include <QTextEdit>

#include "report/richtextbox.h"

namespace trelvo {

class DesktopQt;
struct videoscritt;

class ReportView : public QTextEdit, public vistatesto {
 public:
  ReportView(DesktopQt& desktop, videoscritt& form);
  ~ReportView() override;

  void undo();
  void redo();

  void sostituito(std::size_t begin, std::size_t removed, std::size_t added) override;
  void caricato() override;
  void formattati(std::size_t begin, std::size_t count) override;
  void paragrafi_formattati(std::size_t begin, std::size_t count) override;
  void selezionato() override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  const relazione& report() const { return box_.documento(); }
  // Places in the report and in the text of Qt, which counts some characters twice.
  int place_of(std::size_t place) const;
  std::size_t report_place(int place) const;

  void user_changed(int begin, int added);
  // Characters of the report give way to what Qt has in their place.
  void take_over(int begin, int removed, int added);
  // Qt does not tell all that an undo changes: the whole text is taken over.
  void step_back(bool back);
  void user_selected();
  // Puts characters of the report in the place of the cursor's selection.
  void show_characters(QTextCursor& cursor, std::size_t begin, std::size_t count);
  void show_formats(std::size_t begin, std::size_t count);
  void show_paragraphs(std::size_t first, std::size_t last);
  // Whether the key takes away the bullet of the paragraph it is pressed in.
  bool ends_bullet(const QKeyEvent& event) const;

  DesktopQt& desktop_;
  videoscritt& form_;
  RichTextBox& box_;
  bool showing_ = false;
};

}  // namespace trelvo
