#include "platform/qt/regional_qt.h"

#include <QLocale>

namespace trelvo {

RegionalFormat system_regional_format() {
  const QLocale locale = QLocale::system();
  return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

}  // namespace trelvo
