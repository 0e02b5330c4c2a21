// A panel in the corner of the frame: one after the other, the drawings that a killed program left behind. It waits
// there and keeps nobody from working.
#pragma once

#include <QFrame>
#include <vector>

#include "files/copie.h"

class QLabel;

namespace trelvo {

class DesktopQt;

class LostDrawings : public QFrame {
 public:
  // A child of the desktop's frame, which is there; it goes when the last one was decided.
  LostDrawings(DesktopQt& desktop, copieaperte& copies, std::vector<disegnoperduto> lost);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show_first();
  void settle();
  void next();

  DesktopQt& desktop_;
  copieaperte& copies_;
  std::vector<disegnoperduto> lost_;
  QWidget* place_;  // the documents behind it
  QLabel* text_;
};

}  // namespace trelvo
