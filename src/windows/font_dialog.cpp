#include "windows/font_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
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

// A font that the system lacks is shown as another; it keeps its name unless the user takes a different one.
void take_font(const QFont& chosen, const QString& stand_in, FontDialog& dialog) {
  if (chosen.family() != stand_in) dialog.FontName = chosen.family().toStdString();
  dialog.FontSize = static_cast<float>(chosen.pointSizeF());
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
  const QString stand_in = QFontInfo(asked).family();
  QFont shown = asked;
  shown.setFamily(stand_in);

  auto* fonts = new QFontDialog;
  fonts->setWindowFlags(Qt::Widget);
  fonts->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  fonts->setCurrentFont(shown);
  auto* color_button = new QPushButton("C&olore...");
  color_button->setAutoDefault(false);
  Color color = dialog.color;
  show_color_on(color_button, color);
  QObject::connect(color_button, &QPushButton::clicked, &box, [&] {
    if (ask_color(&box, color)) show_color_on(color_button, color);
  });
  auto* buttons = new QDialogButtonBox;
  buttons->addButton("OK", QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton("Annulla", QDialogButtonBox::RejectRole);
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
  take_font(fonts->currentFont(), stand_in, dialog);
  dialog.color = color;
  return true;
}

}  // namespace trelvo
