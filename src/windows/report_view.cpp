#include "windows/report_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextList>
#include <algorithm>

#include "app/app.h"
#include "report/caratteri.h"
#include "report/videoscritt.h"
#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/text_formats.h"

namespace trelvo {

namespace {

constexpr int page_margin = 16;

bool is_pair(char32_t c) { return c > 0xFFFF; }

int units(std::u32string_view text) {
  return static_cast<int>(text.size()) + static_cast<int>(std::count_if(text.begin(), text.end(), is_pair));
}

QString qt_text(std::u32string_view text) {
  return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

// Character for character, so that places stay the same: what a report does not have becomes its unknown character.
std::u32string report_text(const QString& text) {
  std::u32string characters;
  for (const char32_t c : text.toStdU32String()) characters += ripulito(std::u32string_view(&c, 1));
  return characters;
}

// The characters of a text from `begin` to `end`, and the formats of runs and paragraphs.
struct UserText {
  std::u32string characters;
  std::vector<relazione::tratto> runs;
  std::vector<formatoparagrafo> paragraphs;

  void add(const QString& text, const QTextCharFormat& format) {
    const std::u32string added = report_text(text);
    if (added.empty()) return;
    characters += added;
    runs.push_back({added.size(), report_format(format)});
  }
};

void read_block(UserText& read, const QTextBlock& block, int begin, int end) {
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    const int from = std::max(begin, fragment.position());
    const int to = std::min(end, fragment.position() + fragment.length());
    if (from < to) read.add(fragment.text().mid(from - fragment.position(), to - from), fragment.charFormat());
  }
  const int mark = block.position() + block.length() - 1;
  // Qt keeps its format with the paragraph that it opens.
  if (mark >= begin && mark < end) read.add("\n", block.next().charFormat());
}

UserText read_text(const QTextDocument& text, int begin, int end) {
  UserText read;
  for (QTextBlock block = text.findBlock(begin); block.isValid() && block.position() <= end; block = block.next()) {
    read.paragraphs.push_back(report_format(block));
    read_block(read, block, begin, end);
  }
  return read;
}

// The keys of the menu are the menu's.
bool is_menu_key(const QKeyEvent& event) {
  return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut) || event.matches(QKeySequence::Paste) ||
         event.matches(QKeySequence::SelectAll) ||
         (event.modifiers() & Qt::ControlModifier && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z &&
          event.key() != Qt::Key_Z && event.key() != Qt::Key_Y);
}

}  // namespace

ReportView::ReportView(DesktopQt& desktop, videoscritt& form)
    : desktop_(desktop), form_(form), box_(form.RichTextBox1) {
  setAcceptRichText(false);
  setAcceptDrops(false);
  document()->setDocumentMargin(page_margin);
  setFrameShape(QFrame::NoFrame);
  setLineWrapMode(QTextEdit::WidgetWidth);
  bind_control(desktop_, this, box_, "Testo");
  follow(this, box_.BackColor, [this] {
    QPalette sheet = palette();
    sheet.setColor(QPalette::Base, color_of(box_.BackColor));
    sheet.setColor(QPalette::Text, readable_on(color_of(box_.BackColor)));
    setPalette(sheet);
  });
  QObject::connect(document(), &QTextDocument::contentsChange, this,
                   [this](int begin, int /*removed*/, int added) { user_changed(begin, added); });
  QObject::connect(this, &QTextEdit::selectionChanged, this, [this] { user_selected(); });
  QObject::connect(this, &QTextEdit::cursorPositionChanged, this, [this] { user_selected(); });
  box_.vista = this;
  caricato();
}

ReportView::~ReportView() { box_.vista = nullptr; }

int ReportView::place_of(std::size_t place) const {
  return units(std::u32string_view(report().testo()).substr(0, place));
}

std::size_t ReportView::report_place(int place) const {
  const std::u32string& text = report().testo();
  std::size_t i = 0;
  for (int passed = 0; i < text.size() && passed < place; ++i) passed += is_pair(text[i]) ? 2 : 1;
  return i;
}

void ReportView::show_characters(QTextCursor& cursor, std::size_t begin, std::size_t count) {
  const std::u32string_view text = report().testo();
  cursor.removeSelectedText();
  report().per_ogni_tratto(begin, count, [&](std::size_t place, std::size_t length, const formatocarattere& format) {
    const std::size_t seen = std::min(length, text.size() - place);
    if (seen > 0) cursor.insertText(qt_text(text.substr(place, seen)), qt_format(format));
  });
}

// Of a paragraph: the format of its mark, which an empty one is typed in; its own format; its bullet.
void ReportView::show_paragraphs(std::size_t first, std::size_t last) {
  const auto& paragraphs = report().paragrafi();
  std::size_t place = 0;
  for (std::size_t i = 0; i < first; ++i) place += paragraphs[i].lunghezza;
  for (std::size_t i = first; i <= last; ++i) {
    const formatoparagrafo& format = paragraphs[i].formato;
    const QTextBlock block = document()->findBlockByNumber(static_cast<int>(i));
    QTextCursor cursor(block);
    if (paragraphs[i].lunghezza == 1) cursor.setBlockCharFormat(qt_format(report().formato(place)));
    cursor.setBlockFormat(qt_format(format, logicalDpiX()));
    place += paragraphs[i].lunghezza;
    if (!format.puntato) continue;
    QTextListFormat bullet;
    bullet.setStyle(QTextListFormat::ListDisc);
    bullet.setIndent(0);
    QTextList* above = block.previous().textList();
    if (above != nullptr) {
      above->add(block);
    } else {
      cursor.createList(bullet);
    }
  }
}

void ReportView::show_formats(std::size_t begin, std::size_t count) {
  const std::u32string_view text = report().testo();
  QTextCursor cursor(document());
  cursor.setPosition(place_of(begin));
  report().per_ogni_tratto(begin, count, [&](std::size_t place, std::size_t length, const formatocarattere& format) {
    cursor.setPosition(cursor.position() + units(text.substr(place, length)), QTextCursor::KeepAnchor);
    cursor.setCharFormat(qt_format(format));
    cursor.setPosition(cursor.selectionEnd());
  });
}

void ReportView::sostituito(std::size_t begin, std::size_t removed, std::size_t added) {
  const QScopedValueRollback<bool> showing(showing_, true);
  const int first = place_of(begin);
  const int grown = units(report().testo()) - (document()->characterCount() - 1);
  const int gone = units(std::u32string_view(report().testo()).substr(begin, added)) - grown;
  if (removed == 0 && added == 0) return;
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  cursor.setPosition(first);
  cursor.setPosition(first + gone, QTextCursor::KeepAnchor);
  show_characters(cursor, begin, added);
  show_paragraphs(report().indice_paragrafo(begin), report().indice_paragrafo(begin + added));
  cursor.endEditBlock();
}

// An emptied text can be had back; one that was loaded has no past.
void ReportView::caricato() {
  const QScopedValueRollback<bool> showing(showing_, true);
  const bool loaded = report().lunghezza() > 0;
  if (loaded) document()->setUndoRedoEnabled(false);
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  cursor.select(QTextCursor::Document);
  show_characters(cursor, 0, report().lunghezza());
  show_paragraphs(0, report().paragrafi().size() - 1);
  cursor.endEditBlock();
  document()->setUndoRedoEnabled(true);
  moveCursor(QTextCursor::Start);
}

void ReportView::formattati(std::size_t begin, std::size_t count) {
  const QScopedValueRollback<bool> showing(showing_, true);
  QTextCursor edit(document());
  edit.beginEditBlock();
  show_formats(begin, count);
  edit.endEditBlock();
}

void ReportView::paragrafi_formattati(std::size_t begin, std::size_t count) {
  const QScopedValueRollback<bool> showing(showing_, true);
  QTextCursor edit(document());
  edit.beginEditBlock();
  show_paragraphs(report().indice_paragrafo(begin), report().indice_paragrafo(count > 0 ? begin + count - 1 : begin));
  edit.endEditBlock();
}

void ReportView::selezionato() {
  const QScopedValueRollback<bool> showing(showing_, true);
  const int begin = place_of(box_.inizio());
  const int end = place_of(box_.inizio() + box_.lunghezza());
  QTextCursor cursor = textCursor();
  if (cursor.selectionStart() != begin || cursor.selectionEnd() != end) {
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
  }
  if (begin != end) return;
  const QTextCharFormat typed = qt_format(box_.formato());
  if (currentCharFormat() != typed) setCurrentCharFormat(typed);
}

// Qt counts the mark of the last paragraph too when it replaces a whole text.
void ReportView::user_changed(int begin, int added) {
  if (showing_) return;
  const int length = document()->characterCount() - 1;
  const int before = units(report().testo());
  begin = std::min({begin, length, before});
  added = std::min(added, length - begin);
  const int removed = before + added - length;
  if (removed < 0 || begin + removed > before) {
    take_over(0, before, length);
  } else {
    take_over(begin, removed, added);
  }
}

void ReportView::take_over(int begin, int removed, int added) {
  const std::size_t first = report_place(begin);
  const std::size_t count = report_place(begin + removed) - first;
  const UserText read = read_text(*document(), begin, begin + added);
  desktop_.run([&] { box_.modificato(first, count, read.characters, read.runs, read.paragraphs); });
}

void ReportView::step_back(bool back) {
  {
    const QScopedValueRollback<bool> showing(showing_, true);
    if (back) {
      QTextEdit::undo();
    } else {
      QTextEdit::redo();
    }
  }
  take_over(0, units(report().testo()), document()->characterCount() - 1);
  user_selected();
}

void ReportView::undo() {
  if (document()->isUndoAvailable()) step_back(true);
}

void ReportView::redo() {
  if (document()->isRedoAvailable()) step_back(false);
}

void ReportView::user_selected() {
  if (showing_) return;
  const QTextCursor cursor = textCursor();
  const std::size_t begin = report_place(cursor.selectionStart());
  const std::size_t end = cursor.hasSelection() ? report_place(cursor.selectionEnd()) : begin;
  desktop_.run([&] { box_.seleziona(begin, end - begin); });
}

bool ReportView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && is_menu_key(*static_cast<QKeyEvent*>(event))) {
    event->ignore();
    return true;
  }
  return QTextEdit::event(event);
}

bool ReportView::ends_bullet(const QKeyEvent& event) const {
  const QTextCursor cursor = textCursor();
  if (cursor.hasSelection() || cursor.currentList() == nullptr || !cursor.atBlockStart()) return false;
  if (event.key() == Qt::Key_Backspace) return event.modifiers() == Qt::NoModifier;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  return enter && cursor.block().length() == 1;
}

void ReportView::keyPressEvent(QKeyEvent* event) {
  if (ends_bullet(*event)) {
    desktop_.run([&] { box_.SelBullet = false; });
  } else if (event->matches(QKeySequence::Undo)) {
    undo();
  } else if (event->matches(QKeySequence::Redo)) {
    redo();
  } else {
    QTextEdit::keyPressEvent(event);
  }
}

void ReportView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* back = menu.addAction("Annulla", this, [this] { undo(); });
  back->setEnabled(document()->isUndoAvailable());
  QAction* again = menu.addAction("Ripeti", this, [this] { redo(); });
  again->setEnabled(document()->isRedoAvailable());
  menu.addSeparator();
  for (MenuItem* item : form_.mnumodifica.items) {
    if (item->Caption.get() == "-") {
      menu.addSeparator();
    } else {
      menu.addAction(qt(item->Caption), this, [this, item] { desktop_.run([&] { scegli(*item); }); });
    }
  }
  menu.exec(event->globalPos());
}

bool ReportView::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

void ReportView::insertFromMimeData(const QMimeData* source) {
  user_selected();
  desktop_.run([&] { box_.SelText = source->text().toStdString(); });
}

QMimeData* ReportView::createMimeDataFromSelection() const {
  auto* plain = new QMimeData;
  QString text = textCursor().selectedText();
  plain->setText(text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n'));
  return plain;
}

}  // namespace trelvo
