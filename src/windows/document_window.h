// The window of one document: its drawing, and the scroll strips that float over its lower and right rim.
#pragma once

#include <QMdiSubWindow>

#include "document/distipo.h"
#include "platform/desktop.h"

class QScrollBar;

namespace trelvo {

class Canvas;
class DesktopQt;

class DocumentWindow : public QMdiSubWindow {
 public:
  DocumentWindow(DesktopQt& desktop, distipo& document, QWidget* parent);

  distipo& document() { return document_; }
  // Shows what changed in the drawing.
  void refresh();
  // Whether the tab key comes by: it would bring the document to the front.
  void set_tab_stop(bool stop);
  Desktop::ClientSize client_size() const;
  // The document is loaded: from here on another size is a resize.
  void opened();
  // The document is gone or going; nothing reaches it any more.
  void release();

  // What a new or a cascaded window takes of the room there is.
  QSize sizeHint() const override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void make_strips();
  void lay_strips();
  void size_changed();
  void show_pointer();
  void show_window_state();
  void key(QKeyEvent& event);
  void type_on(QKeyEvent& event);

  DesktopQt& desktop_;
  distipo& document_;
  QWidget* body_;
  Canvas* canvas_;
  QWidget* bottom_ = nullptr;
  QWidget* right_ = nullptr;
  QScrollBar* horizontal_ = nullptr;
  QScrollBar* vertical_ = nullptr;
  bool open_ = false;
  bool released_ = false;
};

}  // namespace trelvo
