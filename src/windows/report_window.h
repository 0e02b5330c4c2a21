// The window of the report editor.
#pragma once

#include <QMainWindow>
#include <memory>

#include "report/videoscritt.h"

namespace trelvo {

class DesktopQt;
class MenuSet;

class ReportWindow : public QMainWindow {
 public:
  ReportWindow(DesktopQt& desktop, videoscritt& form);
  ~ReportWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void make_toolbar();
  void show_or_hide();

  DesktopQt& desktop_;
  videoscritt& form_;
  std::unique_ptr<MenuSet> menus_;
};

}  // namespace trelvo
