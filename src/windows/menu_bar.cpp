#include "windows/menu_bar.h"

#include <QMenu>
#include <QRegularExpression>

#include "app/app.h"
#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/mnemonics.h"

namespace trelvo {

namespace {

// A key that a caption names stands behind a run of blanks, which needs no such width here.
QString title_of(const std::string& caption) {
  static const QRegularExpression blanks(" {3,}");
  return qt(caption).replace(blanks, "  ");
}

QStringList titles_of(const std::vector<MenuItem*>& items) {
  QStringList titles;
  for (const MenuItem* item : items) titles.append(title_of(item->Caption));
  return with_mnemonics(titles);
}

void sync(QAction* action, const MenuItem& item) {
  action->setCheckable(item.Checked);
  action->setChecked(item.Checked);
}

}  // namespace

QKeySequence shortcut_of(int shortcut) {
  constexpr int code_f1 = 112;
  if ((shortcut & key_control) != 0) {
    const int shift = (shortcut & key_shift) != 0 ? static_cast<int>(Qt::SHIFT) : 0;
    return QKeySequence(static_cast<int>(Qt::CTRL) | shift | (shortcut & 0xFF));
  }
  if (shortcut < code_f1) return {};
  return QKeySequence(Qt::Key_F1 + (shortcut - code_f1));
}

void MenuSet::add_item(QMenu& menu, const QString& title, MenuItem& item) {
  if (item.Caption.get() == "-") {
    menu.addSeparator();
    return;
  }
  QAction* action = nullptr;
  if (item.items.empty()) {
    action = menu.addAction(title);
    action->setShortcut(shortcut_of(item.shortcut));
    QObject::connect(action, &QAction::triggered, action, [this, alive = alive_, &item, action] {
      desktop_.run([&] { scegli(item); });
      if (*alive) sync(action, item);
    });
    follow(action, item.Checked, [action, &item] { sync(action, item); });
  } else {
    QMenu* sub = menu.addMenu(title);
    fill(*sub, item.items);
    action = sub->menuAction();
  }
  follow(action, item.Enabled, [action, &item] { action->setEnabled(item.Enabled); });
  follow(action, item.Visible, [action, &item] { action->setVisible(item.Visible); });
}

void MenuSet::fill(QMenu& menu, const std::vector<MenuItem*>& items) {
  const QStringList titles = titles_of(items);
  for (std::size_t i = 0; i < items.size(); ++i) add_item(menu, titles[static_cast<qsizetype>(i)], *items[i]);
}

MenuSet::MenuSet(DesktopQt& desktop, QMenuBar& bar, const Form& form, std::function<void(QMenu&)> window_list)
    : desktop_(desktop), bar_(bar), window_list_(std::move(window_list)) {
  const QStringList titles = titles_of(form.menus);
  for (std::size_t i = 0; i < form.menus.size(); ++i) {
    MenuItem* top = form.menus[i];
    auto* menu = new QMenu(titles[static_cast<qsizetype>(i)], &bar_);
    bar_.addMenu(menu);
    menus_.push_back(menu);
    fill(*menu, top->items);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, top, menu] {
      if (top->Click) desktop_.run([&] { top->Click(); });
      if (top->name == "mnufinestra" && window_list_) window_list_(*menu);
    });
    follow(menu, top->Visible, [menu, top] { menu->menuAction()->setVisible(top->Visible); });
  }
}

MenuSet::~MenuSet() {
  *alive_ = false;
  for (QMenu* menu : menus_) {
    bar_.removeAction(menu->menuAction());
    menu->disconnect();
    menu->deleteLater();
  }
}

}  // namespace trelvo
