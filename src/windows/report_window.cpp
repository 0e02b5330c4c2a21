#include "windows/report_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QToolBar>

#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/icona.h"
#include "windows/menu_bar.h"
#include "windows/report_view.h"

namespace trelvo {

namespace {

// The shortcut of the menu item of the same name, if the button has none of its own.
QKeySequence shortcut_shown(const videoscritt& form, const pulsante& button) {
  if (button.shortcut != 0) return shortcut_of(button.shortcut);
  QString name = qt(button.Caption);
  for (const Control* control : form.controls) {
    const auto* item = dynamic_cast<const MenuItem*>(control);
    if (item != nullptr && qt(item->Caption).remove('&') == name) return shortcut_of(item->shortcut);
  }
  return {};
}

}  // namespace

ReportWindow::ReportWindow(DesktopQt& desktop, videoscritt& form) : desktop_(desktop), form_(form) {
  setWindowIcon(icona("trelvo"));
  menus_ = std::make_unique<MenuSet>(desktop_, *menuBar(), form_, std::function<void(QMenu&)>());
  make_toolbar();
  setCentralWidget(new ReportView(desktop_, form_));
  follow(this, form_.Caption, [this] { setWindowTitle(qt(form_.Caption)); });
  follow(this, form_.Visible, [this] { show_or_hide(); });
}

ReportWindow::~ReportWindow() = default;

void ReportWindow::make_toolbar() {
  auto* bar = new QToolBar("Barra Strumenti", this);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setIconSize({24, 24});
  int last = 0;
  for (const auto& [index, button] : form_.Toolbar1.items()) {
    if (index > last + 1) bar->addSeparator();
    last = index;
    QAction* action = bar->addAction(icona(qt(button->icona)), qt(button->Caption));
    const QKeySequence keys = shortcut_shown(form_, *button);
    if (!keys.isEmpty()) {
      action->setToolTip(QString("%1 (%2)").arg(qt(button->Caption), keys.toString(QKeySequence::NativeText)));
    }
    if (button->shortcut != 0) action->setShortcut(keys);
    action->setCheckable(button->stays);
    follow(action, button->Value, [action, pressed = button.get()] { action->setChecked(pressed->Value); });
    QObject::connect(action, &QAction::triggered, bar, [this, action, pressed = button.get()] {
      desktop_.run([&] { pressed->Click(); });
      action->setChecked(pressed->Value);
    });
  }
  addToolBar(bar);
}

void ReportWindow::show_or_hide() {
  if (!form_.Visible) {
    hide();
  } else if (form_.WindowState == window_maximised) {
    if (const QScreen* screen = QApplication::primaryScreen()) resize(screen->availableSize());
    showMaximized();
  } else {
    show();
  }
}

void ReportWindow::closeEvent(QCloseEvent* event) {
  if (form_.loaded()) desktop_.run([&] { form_.close(); });
  event->setAccepted(!form_.loaded());
}

void ReportWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && form_.loaded()) {
    desktop_.run([&] { statopulsanti(form_); });
  }
  QMainWindow::changeEvent(event);
}

}  // namespace trelvo
