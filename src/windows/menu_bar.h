// Menus of a form as a Qt menu bar.
#pragma once

#include <QKeySequence>
#include <QMenuBar>
#include <functional>
#include <memory>
#include <vector>

#include "platform/controls.h"

namespace trelvo {

class DesktopQt;

// The keys of a menu item's shortcut; none for 0.
QKeySequence shortcut_of(int shortcut);

// The menus of one form in a menu bar. Its items may go away, with the document they belong to, while one of them is
// still at work: nothing touches them once this object is gone.
class MenuSet {
 public:
  // `window_list` adds to the menu "mnufinestra" as it opens.
  MenuSet(DesktopQt& desktop, QMenuBar& bar, const Form& form, std::function<void(QMenu&)> window_list);
  ~MenuSet();
  MenuSet(const MenuSet&) = delete;
  MenuSet& operator=(const MenuSet&) = delete;

 private:
  void fill(QMenu& menu, const std::vector<MenuItem*>& items);
  void add_item(QMenu& menu, const QString& title, MenuItem& item);

  DesktopQt& desktop_;
  QMenuBar& bar_;
  std::function<void(QMenu&)> window_list_;
  std::vector<QMenu*> menus_;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace trelvo
