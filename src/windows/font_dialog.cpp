#include "windows/font_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding.h"
#include "windows/color_dialog.h"

namespace trelvo {

namespace {

QFont font_of(const FontDialog& dialog) {
  QFont font(qt(dialog.FontName));
  if (dialog.FontSize > 0) font.setPointSizeF(dialog.FontSize);
  font.setBold(dialog.FontBold);
  font.setItalic(dialog.FontItalic);
  font.setUnderline(dialog.FontUnderline);
  font.setStrikeOut(dialog.FontStrikethru);
  return font;
}

// The dialog finds a style by its name alone: without one it would start from another style than asked.
void name_style(QFont& font) {
  for (const QString& style : QFontDatabase::styles(font.family())) {
    const bool same = QFontDatabase::bold(font.family(), style) == font.bold() &&
                      QFontDatabase::italic(font.family(), style) == font.italic();
    if (!same) continue;
    font.setStyleName(style);
    return;
  }
}

// A font that the system lacks is shown as another, and a size as a whole number: both stay unless the user takes a
// different one.
void take_font(const QFont& chosen, const QFont& opened, FontDialog& dialog) {
  if (chosen.family() != opened.family()) dialog.FontName = chosen.family().toStdString();
  if (chosen.pointSizeF() != opened.pointSizeF()) dialog.FontSize = static_cast<float>(chosen.pointSizeF());
  dialog.FontBold = chosen.bold();
  dialog.FontItalic = chosen.italic();
  dialog.FontUnderline = chosen.underline();
  dialog.FontStrikethru = chosen.strikeOut();
}

void show_color_on(QPushButton* button, Color color) {
  QPixmap swatch(button->iconSize());
  swatch.fill(color_of(color));
  button->setIcon(QIcon(swatch));
}

}  // namespace

bool ask_font(QWidget* parent, FontDialog& dialog) {
  QDialog box(parent);
  box.setWindowTitle("Carattere");
  const QFont asked = font_of(dialog);
  QFont shown = asked;
  shown.setFamily(QFontInfo(asked).family());
  name_style(shown);

  auto* fonts = new QFontDialog;
  fonts->setWindowFlags(Qt::Widget);
  fonts->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  fonts->setCurrentFont(shown);
  const QFont opened = fonts->currentFont();
  auto* color_button = new QPushButton("C&olore...");
  color_button->setVisible(dialog.asks_color);
  Color color = dialog.color;
  show_color_on(color_button, color);
  QObject::connect(color_button, &QPushButton::clicked, &box, [&] {
    if (ask_color(&box, color)) show_color_on(color_button, color);
  });
  auto* buttons = new QDialogButtonBox;
  buttons->addButton("OK", QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton("Annulla", QDialogButtonBox::RejectRole);
  // Enter and Esc in one of its lists are taken by the dialog inside.
  QObject::connect(fonts, &QDialog::accepted, &box, &QDialog::accept);
  QObject::connect(fonts, &QDialog::rejected, &box, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);

  auto* layout = new QVBoxLayout(&box);
  layout->addWidget(fonts, 1);
  auto* row = new QHBoxLayout;
  row->addWidget(color_button);
  row->addStretch(1);
  row->addWidget(buttons);
  layout->addLayout(row);
  if (box.exec() != QDialog::Accepted) return false;
  take_font(fonts->currentFont(), opened, dialog);
  dialog.color = color;
  return true;
}

}  // namespace trelvo
