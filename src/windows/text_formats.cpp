#include "windows/text_formats.h"

#include <QFontMetricsF>
#include <QTextList>

#include "windows/binding.h"

namespace trelvo {

namespace {

constexpr double twips_per_inch = 1440;
constexpr double twips_per_point = 20;

// What Qt's own formats do not hold as it was.
enum Exact { offset = QTextFormat::UserProperty, alignment, left_indent, right_indent, first_indent, bullet };

Qt::Alignment qt_alignment(allineamento how) {
  switch (how) {
    case allineamento::destra:
      return Qt::AlignRight;
    case allineamento::centro:
      return Qt::AlignHCenter;
    case allineamento::giustificato:
      return Qt::AlignJustify;
    case allineamento::sinistra:
      break;
  }
  return Qt::AlignLeft;
}

}  // namespace

QTextCharFormat qt_format(const formatocarattere& format) {
  const double points = format.mezzipunti / 2.0;
  QTextCharFormat made;
  made.setFontFamilies({qt(format.nome)});
  made.setFontPointSize(points);
  made.setFontWeight(format.grassetto ? QFont::Bold : QFont::Normal);
  made.setFontItalic(format.corsivo);
  made.setFontUnderline(format.sottolineato);
  made.setFontStrikeOut(format.barrato);
  made.setForeground(color_of(format.colore));
  made.setProperty(offset, format.scostamento);
  if (format.scostamento != 0) made.setBaselineOffset(format.scostamento / twips_per_point / points * 100);
  return made;
}

formatocarattere report_format(const QTextCharFormat& format) {
  const QColor color = format.foreground().color();
  formatocarattere read;
  const QString name = format.fontFamilies().toStringList().value(0);
  if (!name.isEmpty()) read.nome = name.toStdString();
  if (format.fontPointSize() > 0) read.mezzipunti = qRound(format.fontPointSize() * 2);
  read.grassetto = format.fontWeight() > QFont::Medium;
  read.corsivo = format.fontItalic();
  read.sottolineato = format.fontUnderline();
  read.barrato = format.fontStrikeOut();
  read.colore = format.hasProperty(QTextFormat::ForegroundBrush) ? rgb(color.red(), color.green(), color.blue()) : 0;
  read.scostamento = format.intProperty(offset);
  return read;
}

QTextBlockFormat qt_format(const formatoparagrafo& format, double dots_per_inch) {
  const auto dots = [dots_per_inch](int twips) { return twips / twips_per_inch * dots_per_inch; };
  QTextBlockFormat made;
  made.setAlignment(qt_alignment(format.allinea));
  made.setLeftMargin(dots(std::max(format.sinistro, 0)));
  made.setRightMargin(dots(std::max(format.destro, 0)));
  // The bullet hangs by itself.
  made.setTextIndent(format.puntato ? 0 : dots(std::max(format.primariga, -std::max(format.sinistro, 0))));
  made.setProperty(alignment, static_cast<int>(format.allinea));
  made.setProperty(left_indent, format.sinistro);
  made.setProperty(right_indent, format.destro);
  made.setProperty(first_indent, format.primariga);
  made.setProperty(bullet, format.puntato);
  return made;
}

formatoparagrafo report_format(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  const formatoparagrafo read{static_cast<allineamento>(format.intProperty(alignment)), format.intProperty(left_indent),
                              format.intProperty(right_indent), format.intProperty(first_indent),
                              format.boolProperty(bullet)};
  return block.textList() == nullptr ? senza_punto(read) : read;
}

}  // namespace trelvo
