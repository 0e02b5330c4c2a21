// The desktop's style with buttons that look alike in all dialogs, our own and Qt's.
#pragma once

#include <QProxyStyle>

namespace trelvo {

class PlainButtons : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace trelvo
