#include "windows/file_dialogs.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QTreeView>

#include "windows/binding.h"

namespace trelvo {

namespace {

struct Filter {
  QString name;     // "DIsegni Trelvo"
  QString pattern;  // "*.DIS"
};

QList<Filter> filters_of(const CommonDialog& dialog) {
  const QStringList parts = qt(dialog.Filter).split('|', Qt::SkipEmptyParts);
  QList<Filter> filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    filters.append({parts[i].section('(', 0, 0).trimmed(), parts[i + 1]});
  }
  return filters;
}

// Endings count in either case.
QString shown(const Filter& filter) {
  if (filter.pattern == "*.*") return filter.name + " (*)";
  return QString("%1 (%2 %3)").arg(filter.name, filter.pattern, filter.pattern.toLower());
}

bool ask(QWidget* parent, CommonDialog& dialog, QFileDialog::AcceptMode mode) {
  static QString folder;
  const QList<Filter> filters = filters_of(dialog);
  FileTypes types;
  QFileDialog box(parent, mode == QFileDialog::AcceptOpen ? "Apri" : "Salva con Nome");
  box.setAcceptMode(mode);
  box.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks
  dress_file_dialog(box, types);
  QStringList names;
  for (const Filter& filter : filters) names.append(shown(filter));
  box.setNameFilters(names);
  if (!folder.isEmpty()) box.setDirectory(folder);
  if (!dialog.FileName.empty()) box.selectFile(qt(dialog.FileName));
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;

  QString name = box.selectedFiles().constFirst();
  const auto chosen = names.indexOf(box.selectedNameFilter());
  if (mode == QFileDialog::AcceptSave && QFileInfo(name).suffix().isEmpty() && chosen >= 0) {
    const QString ending = filters[chosen].pattern.mid(1);
    if (ending != ".*") name += ending;
  }
  folder = QFileInfo(name).absolutePath();
  dialog.FileName = name.toStdString();
  dialog.FilterIndex = static_cast<int>(chosen) + 1;
  return true;
}

}  // namespace

QString FileTypes::type(const QFileInfo& file) const {
  if (file.isDir()) return "Cartella";
  return file.suffix().isEmpty() ? "File" : "File " + file.suffix().toUpper();
}

void dress_file_dialog(QFileDialog& box, FileTypes& types) {
  box.setLabelText(QFileDialog::LookIn, "Cerca in:");
  box.setLabelText(QFileDialog::FileName, "&Nome:");
  box.setLabelText(QFileDialog::FileType, "Tipo:");
  box.setLabelText(QFileDialog::Accept, box.acceptMode() == QFileDialog::AcceptOpen ? "&Apri" : "&Salva");
  box.setLabelText(QFileDialog::Reject, "Annulla");
  box.setIconProvider(&types);
  // The desktop's own dialog has no such list.
  if (auto* list = box.findChild<QTreeView*>()) {
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
}

bool ask_open_name(QWidget* parent, CommonDialog& dialog) { return ask(parent, dialog, QFileDialog::AcceptOpen); }

bool ask_save_name(QWidget* parent, CommonDialog& dialog) { return ask(parent, dialog, QFileDialog::AcceptSave); }

}  // namespace trelvo
