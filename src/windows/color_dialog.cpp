#include "windows/color_dialog.h"

#include <QColorDialog>

#include "model/tavolozza.h"
#include "windows/binding.h"

namespace trelvo {

bool ask_color(QWidget* parent, Color& color, const QString& title) {
  // The palette's colours are the ones that print with a thickness of their own: they stand ready.
  for (int i = 0; i < numero_colori; ++i) QColorDialog::setCustomColor(i, color_of(tavolozza(i)));
  const QColor chosen = QColorDialog::getColor(color_of(color), parent, title);
  if (!chosen.isValid()) return false;
  color = rgb(chosen.red(), chosen.green(), chosen.blue());
  return true;
}

}  // namespace trelvo
