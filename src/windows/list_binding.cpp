#include <QAbstractListModel>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>

#include "windows/binding.h"
#include "windows/desktop_qt.h"

namespace trelvo {

namespace {

// The rows of a list as Qt's views want them: asked for one by one, so that long lists open at once.
class Rows : public QAbstractListModel {
 public:
  Rows(QObject* parent, const ListBox& list) : QAbstractListModel(parent), list_(list) {}
  int rowCount(const QModelIndex& /*parent*/ = {}) const override { return list_.ListCount; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || index.row() >= list_.ListCount) return {};
    return qt(list_.List(index.row()));
  }
  void renew() {
    beginResetModel();
    endResetModel();
  }

 private:
  const ListBox& list_;
};

void show_row(QListView* widget, const ListBox& list) {
  const QSignalBlocker quiet(widget->selectionModel());
  const QModelIndex row = widget->model()->index(list.ListIndex, 0);
  widget->selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
  if (row.isValid()) widget->scrollTo(row);
  widget->viewport()->update();
}

// Only the user chooses a row: the keyboard that comes to the list brings none with it.
class ListView : public QListView {
 protected:
  void focusInEvent(QFocusEvent* event) override {
    const bool none = !currentIndex().isValid();
    const QSignalBlocker quiet(none ? selectionModel() : nullptr);
    QListView::focusInEvent(event);
    if (none) selectionModel()->clearCurrentIndex();
  }
};

}  // namespace

QListView* make_list(DesktopQt& desktop, ListBox& list, const QString& accessible_name) {
  auto* widget = new ListView;
  bind_control(desktop, widget, list, accessible_name);
  auto* rows = new Rows(widget, list);
  widget->setModel(rows);
  widget->setUniformItemSizes(true);
  widget->setSelectionMode(QAbstractItemView::SingleSelection);
  widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  follow(widget, list.version, [widget, rows, &list] {
    rows->renew();
    show_row(widget, list);
  });
  follow(widget, list.ListIndex, [widget, &list] { show_row(widget, list); });
  follow(widget, list.TopIndex, [widget, &list] { widget->verticalScrollBar()->setValue(list.TopIndex); });
  QObject::connect(widget->selectionModel(), &QItemSelectionModel::currentChanged, widget,
                   [&desktop, &list](const QModelIndex& row) { desktop.run([&] { list.ListIndex = row.row(); }); });
  QObject::connect(widget->verticalScrollBar(), &QScrollBar::valueChanged, widget,
                   [&desktop, &list](int top) { desktop.run([&] { list.TopIndex = top; }); });
  return widget;
}

}  // namespace trelvo
