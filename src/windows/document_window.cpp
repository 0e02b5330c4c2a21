#include "windows/document_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <cmath>

#include "app/app.h"
#include "windows/binding.h"
#include "windows/canvas.h"
#include "windows/desktop_qt.h"
#include "windows/icona.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

constexpr double twips_per_pixel = 15;

int pixels(float twips) { return static_cast<int>(std::lround(twips / twips_per_pixel)); }

// The program draws its own cross: the desktop's pointer is only a point.
QCursor point_cursor() {
  QPixmap picture(5, 5);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.fillRect(1, 1, 3, 3, Qt::white);
  painter.fillRect(2, 2, 1, 1, Qt::black);
  painter.end();
  return QCursor(picture, 2, 2);
}

// The program's icon on a white sheet, so that it shows on a title bar of any colour.
QIcon sheet_icon() {
  QIcon icon;
  for (const int side : {16, 32, 48}) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(picture.rect(), side / 8.0, side / 8.0);
    icona("trelvo").paint(&painter, picture.rect());
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

}  // namespace

DocumentWindow::DocumentWindow(DesktopQt& desktop, distipo& document, QWidget* parent)
    : QMdiSubWindow(parent), desktop_(desktop), document_(document), body_(new QWidget(this)) {
  canvas_ = new Canvas(document.surface, {&document.Line1, &document.Line2, &document.Line3, &document.Line4},
                       {&document.Shape1, &document.Shape2, &document.Shape3}, body_);
  setWidget(body_);
  setAttribute(Qt::WA_DeleteOnClose, false);
  setWindowIcon(sheet_icon());
  canvas_->setFocusPolicy(Qt::StrongFocus);
  canvas_->setAccessibleName("Disegno");
  make_strips();
  body_->installEventFilter(this);
  canvas_->installEventFilter(this);
  setFocusProxy(canvas_);
  body_->setFocusProxy(canvas_);

  canvas_->moved = [this](float x, float y) { desktop_.run([&] { Form_MouseMove(document_, x, y); }); };
  canvas_->pressed = [this](int button, float x, float y) {
    desktop_.run([&] { Form_MouseDown(document_, button, x, y); });
  };
  canvas_->left = [this] {
    if (!released_) desktop_.run([&] { MDIForm_MouseMove(desktop_.bas()); });
  };
  canvas_->resized = [this] { size_changed(); };

  follow(this, document.Caption, [this] { setWindowTitle(qt(document_.Caption) + "[*]"); });
  follow(this, document.MousePointer, [this] { show_pointer(); });
  follow(this, document.WindowState, [this] { show_window_state(); });
}

void DocumentWindow::make_strips() {
  bottom_ = new QWidget(body_);
  right_ = new QWidget(body_);
  for (QWidget* strip : {bottom_, right_}) {
    strip->setAutoFillBackground(true);
    strip->setCursor(Qt::ArrowCursor);
    strip->installEventFilter(this);
  }
  horizontal_ = new QScrollBar(Qt::Horizontal, bottom_);
  vertical_ = new QScrollBar(Qt::Vertical, right_);
  bind_scroll(desktop_, horizontal_, document_.HScroll1, "Scorrimento orizzontale");
  bind_scroll(desktop_, vertical_, document_.VScroll1, "Scorrimento verticale");
  bind_control(desktop_, bottom_, document_.Picture3, {});
  bind_control(desktop_, right_, document_.Picture4, {});
  for (QScrollBar* bar : {horizontal_, vertical_}) {
    bar->setFocusPolicy(Qt::NoFocus);
    bar->installEventFilter(this);
  }
}

void DocumentWindow::lay_strips() {
  const int width = body_->width();
  const int height = body_->height();
  const int strip_height = pixels(document_.Picture3.Height);
  const int strip_width = pixels(document_.Picture4.Width);
  bottom_->setGeometry(0, height - strip_height, width, strip_height);
  right_->setGeometry(width - strip_width, 0, strip_width, height - (bottom_->isHidden() ? 0 : strip_height));
  horizontal_->setGeometry(0, 0, width - strip_width, strip_height);
  vertical_->setGeometry(0, 0, strip_width, right_->height());
}

QSize DocumentWindow::sizeHint() const {
  constexpr double part_of_area = 0.75;
  return mdiArea() == nullptr ? QMdiSubWindow::sizeHint() : mdiArea()->viewport()->size() * part_of_area;
}

void DocumentWindow::refresh() { canvas_->refresh(); }

void DocumentWindow::set_tab_stop(bool stop) { canvas_->setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus); }

Desktop::ClientSize DocumentWindow::client_size() const {
  return {canvas_->logical_width(), canvas_->logical_height()};
}

void DocumentWindow::opened() {
  open_ = true;
  // What the window system still changes of the new window belongs to its opening.
  QTimer::singleShot(0, this, [this] {
    if (released_) return;
    const int changed = document_.cmd.modificato;
    size_changed();
    document_.cmd.modificato = changed;
  });
}

void DocumentWindow::release() {
  released_ = true;
  open_ = false;
  canvas_->moved = nullptr;
  canvas_->pressed = nullptr;
  canvas_->resized = nullptr;
}

void DocumentWindow::size_changed() {
  lay_strips();
  if (!open_ || isMinimized()) return;
  if (desktop_.busy()) {
    QTimer::singleShot(0, this, [this] { size_changed(); });
    return;
  }
  const Desktop::ClientSize size = client_size();
  if (size.width == document_.surface.ScaleWidth && size.height == document_.surface.ScaleHeight) return;
  desktop_.run([&] { ridimensiona(document_, size.width, size.height); });
}

void DocumentWindow::show_pointer() {
  if (document_.MousePointer == pointer_own) {
    static const QCursor point = point_cursor();
    canvas_->setCursor(point);
  } else {
    canvas_->setCursor(Qt::ArrowCursor);
  }
}

void DocumentWindow::show_window_state() {
  if (!isVisible()) return;
  const int state = document_.WindowState;
  if (state == window_maximised && !isMaximized()) showMaximized();
  if (state == window_minimised && !isMinimized()) showMinimized();
  if (state == window_normal && (isMaximized() || isMinimized())) showNormal();
}

void DocumentWindow::changeEvent(QEvent* event) {
  QMdiSubWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || !open_) return;
  document_.WindowState = isMinimized() ? window_minimised : isMaximized() ? window_maximised : window_normal;
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
  // Closing takes this window away by itself, after the event.
  event->ignore();
  if (!released_) desktop_.run([&] { chiudi(document_); });
}

void DocumentWindow::key(QKeyEvent& event) {
  if (const int code = key_code(event); code != 0) desktop_.run([&] { Form_KeyDown(document_, code); });
  const int code = character_code(event);
  if (code == 0) return;
  desktop_.run([&] { Form_KeyPress(document_, code); });
  if (code >= ' ' && !released_) type_on(event);
}

// What is typed without a look at the keyboard's place is meant for the command line.
void DocumentWindow::type_on(QKeyEvent& event) {
  frmMainForm& frame = desktop_.bas().frmMain;
  TextBox& entry = frame.Text2.Enabled ? frame.Text2 : frame.Text1;
  if (!entry.Enabled || !frame.Picture2.Visible) return;
  desktop_.set_focus(&entry);
  if (QWidget* widget = QApplication::focusWidget(); widget != nullptr && widget != canvas_) {
    QApplication::sendEvent(widget, &event);
  }
}

bool DocumentWindow::eventFilter(QObject* watched, QEvent* event) {
  if (released_) return QMdiSubWindow::eventFilter(watched, event);
  if (watched == body_ && event->type() == QEvent::Resize) {
    canvas_->setGeometry(body_->rect());
    lay_strips();
  }
  if (watched == canvas_ && event->type() == QEvent::KeyPress) {
    auto& pressed = *static_cast<QKeyEvent*>(event);
    // The tab key means nothing to a drawing: it goes on to the command line.
    if (pressed.key() == Qt::Key_Tab || pressed.key() == Qt::Key_Backtab) return false;
    key(pressed);
    return true;
  }
  const bool over_strip = watched == bottom_ || watched == right_ || watched == horizontal_ || watched == vertical_;
  if (over_strip && (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove)) {
    desktop_.run([&] { Picture3_MouseMove(document_); });
  }
  return QMdiSubWindow::eventFilter(watched, event);
}

}  // namespace trelvo
