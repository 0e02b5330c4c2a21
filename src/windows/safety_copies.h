// Keeps copies of the unsaved drawings up to date while the program runs, and once more when the system asks it to end.
#pragma once

#include <QObject>
#include <QTimer>
#include <string>

#include "files/copie.h"

namespace trelvo {

class DesktopQt;

class SafetyCopies : public QObject {
 public:
  // In the program's folder. One for a process: it takes the signals that end it.
  SafetyCopies(DesktopQt& desktop, const std::string& folder);
  ~SafetyCopies() override;

  // Asks for the drawings that a program which was killed left behind.
  void offer_lost();

 private:
  void make_copies();
  void watch_signals();

  DesktopQt& desktop_;
  copieaperte copies_;
  QTimer timer_;
};

}  // namespace trelvo
