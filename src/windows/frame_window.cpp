#include "windows/frame_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/app.h"
#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/document_window.h"
#include "windows/icona.h"
#include "windows/menu_bar.h"
#include "windows/strips.h"

namespace trelvo {

namespace {

// Each new document stands a step further down.
constexpr int cascade_step = 26;
constexpr int cascade_length = 8;

void put_in_cascade(QMdiSubWindow& window, int place) {
  const int step = cascade_step * (place % cascade_length);
  window.setGeometry(QRect(QPoint(step, step), window.sizeHint()));
}

}  // namespace

FrameWindow::FrameWindow(DesktopQt& desktop)
    : desktop_(desktop), form_(desktop.bas().frmMain), area_(new QMdiArea(this)) {
  auto* body = new QWidget(this);
  auto* layout = new QVBoxLayout(body);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(area_, 1);
  layout->addWidget(make_command_line(desktop_, form_));
  layout->addWidget(make_status_strip(desktop_, form_));
  setCentralWidget(body);
  area_->setAccessibleName("Disegni aperti");
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->viewport()->setMouseTracking(true);
  setWindowIcon(icona("trelvo"));
  resize(1200, 800);
  make_toolbars();
  follow(this, form_.Caption, [this] { setWindowTitle(qt(form_.Caption)); });
  QObject::connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) { activated(window); });
  auto* leave = new QShortcut(Qt::CTRL | Qt::Key_F4, this);
  QObject::connect(leave, &QShortcut::activated, area_, &QMdiArea::closeActiveSubWindow);
  form_.Unloaded = [this] {
    closing_ = true;
    close();
  };
  form_.load();
  show_menus();
}

// Its documents go after it, and would tell it so.
FrameWindow::~FrameWindow() {
  area_->disconnect(this);
  form_.Unloaded = {};
}

QWidget* FrameWindow::documents_area() const { return area_; }

void FrameWindow::focus_document() {
  if (QMdiSubWindow* window = area_->activeSubWindow()) window->setFocus(Qt::OtherFocusReason);
}

void FrameWindow::make_toolbars() {
  for (const auto& [index, toolbar] : form_.Toolbar1.items()) {
    auto* bar = new QToolBar(qt(form_.Bands(index).Caption), this);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({24, 24});
    int number = 0;
    for (const ToolButton& button : toolbar->buttons) {
      ++number;
      if (button.tip.empty()) {
        bar->addSeparator();
        continue;
      }
      QAction* action = bar->addAction(icona(qt(button.icon)), qt(button.tip));
      QObject::connect(action, &QAction::triggered, bar, [this, pressed = toolbar.get(), number] {
        desktop_.run([&] { pressed->ButtonClick(number); });
      });
      if (QWidget* widget = bar->widgetForAction(action)) {
        widget->setAccessibleName(qt(button.tip));
        widget->installEventFilter(this);
      }
    }
    addToolBar(bar);
    toolbars_.push_back(bar);
    const auto show = [this, bar, shown = toolbar.get()] { bar->setVisible(form_.CoolBar1.Visible && shown->Visible); };
    follow(bar, form_.CoolBar1.Visible, show);
    follow(bar, toolbar->Visible, show);
    follow(bar, form_.Bands(index).NewRow, [this] { break_toolbars(); });
  }
}

// The program's own rows are for bands of its own widths: a bar that is wider here and does not fit goes down as well.
void FrameWindow::break_toolbars() {
  int row = toolbars_.empty() ? 0 : toolbars_[0]->sizeHint().width();
  for (std::size_t i = 1; i < toolbars_.size(); ++i) {
    const int needed = toolbars_[i]->sizeHint().width();
    const bool wanted = form_.Bands(static_cast<int>(i) + 1).NewRow || row + needed > width();
    row = wanted ? needed : row + needed;
    if (wanted == toolBarBreak(toolbars_[i])) continue;
    if (wanted) {
      insertToolBarBreak(toolbars_[i]);
    } else {
      removeToolBarBreak(toolbars_[i]);
    }
  }
}

void FrameWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  break_toolbars();
}

void FrameWindow::refresh() {
  for (const auto& [document, window] : windows_) {
    window->refresh();
    window->set_tab_stop(window == area_->activeSubWindow());
  }
  show_menus();
}

void FrameWindow::show_menus() {
  const distipo* active = desktop_.bas().attivo();
  const Form* wanted = active != nullptr ? static_cast<const Form*>(active) : &form_;
  if (wanted == menus_of_) return;
  menus_of_ = wanted;
  menus_.reset();
  menus_ = std::make_unique<MenuSet>(desktop_, *menuBar(), *wanted, [this](QMenu& menu) { list_windows(menu); });
}

void FrameWindow::list_windows(QMenu& menu) {
  menu.clear();
  menu.addAction("&Sovrapponi", this, &FrameWindow::cascade);
  menu.addAction("&Affianca", area_, &QMdiArea::tileSubWindows);
  menu.addSeparator();
  int number = 0;
  for (QMdiSubWindow* window : area_->subWindowList()) {
    ++number;
    QString title = dynamic_cast<DocumentWindow*>(window)->document().Caption.get().c_str();
    QAction* action = menu.addAction(QString("&%1 %2").arg(number).arg(title.replace("&", "&&")));
    action->setCheckable(true);
    action->setChecked(window == area_->activeSubWindow());
    QObject::connect(action, &QAction::triggered, window, [this, window] { area_->setActiveSubWindow(window); });
  }
}

// Each shows its title beside the one above it.
void FrameWindow::cascade() {
  int place = 0;
  for (QMdiSubWindow* window : area_->subWindowList(QMdiArea::StackingOrder)) {
    if (window->isMinimized()) continue;
    window->showNormal();
    put_in_cascade(*window, place++);
  }
}

// The bars and strips that were shown just now take their place before a drawing is fitted into the rest: a strip that
// folds moves its neighbours once more.
void FrameWindow::settle() {
  constexpr int rounds = 3;
  for (int i = 0; i < rounds; ++i) QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

Desktop::ClientSize FrameWindow::create_document(distipo& document) {
  opening_ = true;
  settle();
  auto* window = new DocumentWindow(desktop_, document, this);
  windows_[&document] = window;
  area_->addSubWindow(window);
  const bool maximised = area_->activeSubWindow() != nullptr && area_->activeSubWindow()->isMaximized();
  put_in_cascade(*window, placed_++);
  if (maximised) {
    window->showMaximized();
  } else {
    window->show();
  }
  return window->client_size();
}

void FrameWindow::show_document(distipo& document) {
  DocumentWindow* window = windows_.at(&document);
  window->opened();
  area_->setActiveSubWindow(window);
  opening_ = false;
}

void FrameWindow::activate_document(distipo& document) {
  const auto found = windows_.find(&document);
  if (found == windows_.end()) return;
  area_->setActiveSubWindow(found->second);
  attivata(desktop_.bas(), document);
}

void FrameWindow::destroy_document(distipo& document) {
  const auto found = windows_.find(&document);
  if (found == windows_.end()) return;
  DocumentWindow* window = found->second;
  windows_.erase(found);
  window->release();
  if (menus_of_ == &document) {
    menus_of_ = nullptr;
    menus_.reset();
  }
  const bool was_opening = opening_;
  opening_ = true;
  window->hide();
  area_->removeSubWindow(window);
  window->deleteLater();
  opening_ = was_opening;
}

void FrameWindow::activated(QMdiSubWindow* window) {
  auto* document_window = dynamic_cast<DocumentWindow*>(window);
  if (opening_ || document_window == nullptr || !windows_.contains(&document_window->document())) return;
  desktop_.run([&] { attivata(desktop_.bas(), document_window->document()); });
}

void FrameWindow::closeEvent(QCloseEvent* event) {
  if (closing_) {
    event->accept();
    return;
  }
  bool closed = false;
  desktop_.run([&] { closed = chiudi_frame(desktop_.bas()); });
  closing_ = closed;
  event->setAccepted(closed);
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter && form_.CoolBar1.MouseMove) {
    desktop_.run([&] { form_.CoolBar1.MouseMove(); });
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace trelvo
