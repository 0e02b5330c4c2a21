// The frame: menus, toolbars, the documents, the command line and the status strip.
#pragma once

#include <QMainWindow>
#include <memory>
#include <unordered_map>
#include <vector>

#include "document/trelvobas.h"

class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;

namespace trelvo {

class DesktopQt;
class DocumentWindow;
class MenuSet;

class FrameWindow : public QMainWindow {
 public:
  explicit FrameWindow(DesktopQt& desktop);
  ~FrameWindow() override;

  // Where the documents are.
  QWidget* documents_area() const;
  // Gives the keyboard to the document in front.
  void focus_document();

  // Shows what an event changed.
  void refresh();

  Desktop::ClientSize create_document(distipo& document);
  void show_document(distipo& document);
  void activate_document(distipo& document);
  void destroy_document(distipo& document);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void make_toolbars();
  void break_toolbars();
  static void settle();
  void activated(QMdiSubWindow* window);
  void show_menus();
  void list_windows(QMenu& menu);
  void cascade();

  DesktopQt& desktop_;
  frmMainForm& form_;
  QMdiArea* area_;
  std::vector<QToolBar*> toolbars_;
  std::unordered_map<const distipo*, DocumentWindow*> windows_;
  std::unique_ptr<MenuSet> menus_;
  const Form* menus_of_ = nullptr;
  int placed_ = 0;
  bool opening_ = false;
  bool closing_ = false;
};

}  // namespace trelvo
