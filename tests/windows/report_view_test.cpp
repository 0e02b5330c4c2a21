// What the window shows and what the report holds stay the same, whoever changes it.
#include "windows/report_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTextBlock>

#include "app/app.h"
#include "report/caratteri.h"
#include "report/descrizione.h"
#include "report/relazione_casuale.h"
#include "report/videoscritt.h"
#include "windows/desktop_qt.h"
#include "windows/text_formats.h"

namespace trelvo {
namespace {

struct Program {
  DesktopQt desktop;
  trelvobas bas{desktop, "/nowhere"};
  videoscritt form{desktop, "/nowhere"};
  RichTextBox& box = form.RichTextBox1;
  std::unique_ptr<ReportView> view;

  Program() {
    desktop.attach(bas);
    view = std::make_unique<ReportView>(desktop, form);
  }
};

// The text of Qt in the words of `described`, a mark's own format left out.
std::string shown(const QTextDocument& text) {
  std::string all;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    all += described(report_format(block));
    std::string last;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const std::string format = described(report_format(it.fragment().charFormat()));
      if (format != last) all += format;
      last = format;
      std::u32string characters = it.fragment().text().toStdU32String();
      std::replace(characters.begin(), characters.end(), a_capo, U'|');
      all += in_utf8(characters);
    }
    all += "\n";
  }
  return all;
}

class ReportViewTest : public testing::Test {
 protected:
  void select(std::size_t begin, std::size_t count) {
    QTextCursor cursor = p.view->textCursor();
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(begin + count), QTextCursor::KeepAnchor);
    p.view->setTextCursor(cursor);
  }
  std::size_t qt_length() const { return static_cast<std::size_t>(p.view->document()->characterCount() - 1); }
  void expect_same() const {
    ASSERT_EQ(fault_of(p.box.documento()), "");
    ASSERT_EQ(shown(*p.view->document()), described(p.box.documento()));
    ASSERT_EQ(QString::fromStdString(p.box.SelText.get()),
              p.view->textCursor().selectedText().replace(QChar::ParagraphSeparator, '\n'));
  }
  void act(RandomReport& random) {
    // Not between the two halves of a character.
    std::size_t begin = random.below(qt_length() + 1);
    std::size_t end = std::min(begin + random.below(6), qt_length());
    const auto half = [&](std::size_t place) {
      return p.view->document()->characterAt(static_cast<int>(place)).isLowSurrogate();
    };
    if (half(begin)) --begin;
    if (half(end)) ++end;
    select(begin, end - begin);
    QTextCursor cursor = p.view->textCursor();
    switch (random.below(12)) {
      case 0:
        cursor.insertText(QString::fromStdU32String(random.text(5)));
        break;
      case 1:
        cursor.removeSelectedText();
        break;
      case 2:
        p.box.SelText = in_utf8(random.text(5));
        break;
      case 3:
        p.box.SelBold = !p.box.SelBold;
        break;
      case 4:
        p.box.SelFontSize = static_cast<float>(8 + random.below(9));
        break;
      case 5:
        p.box.SelCharOffset = 45;
        break;
      case 6:
        p.box.SelAlignment = static_cast<int>(random.below(4));
        break;
      case 7:
        allinea_Click(p.form, 6);
        break;
      case 8:
        p.box.cambia_paragrafi([&](formatoparagrafo& f) { f.sinistro = static_cast<int>(random.below(900)); });
        break;
      case 9:
        cursor.insertBlock();
        break;
      case 10:
        p.view->undo();
        break;
      default:
        p.view->redo();
    }
  }
  Program p;
};

TEST_F(ReportViewTest, showsWhatTheReportHoldsAfterEachChangeOfEither) {
  for (unsigned seed = 0; seed < 12; ++seed) {
    RandomReport random(seed);
    p.box.metti(random.report(6));
    ASSERT_NO_FATAL_FAILURE(expect_same()) << "seed " << seed;
    for (int step = 0; step < 120; ++step) {
      act(random);
      ASSERT_NO_FATAL_FAILURE(expect_same()) << "seed " << seed << " step " << step;
    }
  }
}

TEST_F(ReportViewTest, replacesInAllPlacesAndTakesItBack) {
  p.box.Text = "uno \xF0\x9F\x98\x80 due\nuno tre uno";
  const std::string before = shown(*p.view->document());
  p.box.sostituisci({0, 10, 18}, 3, U"quattro");
  expect_same();
  EXPECT_EQ(p.box.Text.get(), "quattro \xF0\x9F\x98\x80 due\nquattro tre quattro");
  p.view->undo();
  expect_same();
  EXPECT_EQ(shown(*p.view->document()), before);
}

TEST_F(ReportViewTest, anEmptiedReportCanBeHadBackALoadedOneHasNoPast) {
  p.box.Text = "uno";
  EXPECT_FALSE(p.view->document()->isUndoAvailable());
  p.box.Text = "";
  p.view->undo();
  EXPECT_EQ(p.box.Text.get(), "uno");
  expect_same();
}

}  // namespace
}  // namespace trelvo
