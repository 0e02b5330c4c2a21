// Small coloured pieces of dialogs: a line style to choose, and a colour to look at.
#pragma once

#include <QAbstractButton>
#include <QFrame>

#include "platform/controls.h"

namespace trelvo {

class DesktopQt;

// A line of one style, in the picture box's colour. Click and space choose it.
class StyleSwatch : public QAbstractButton {
 public:
  StyleSwatch(DesktopQt& desktop, PictureBox& box, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureBox& box_;
};

// The colour that a label holds as a number; "Vari" where it holds none.
class ColorChip : public QFrame {
 public:
  explicit ColorChip(Label& label, const QString& name, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Label& label_;
};

}  // namespace trelvo
