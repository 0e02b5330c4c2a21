// The file dialogs of the desktop, opened in the folder used last.
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>

#include "platform/desktop.h"

namespace trelvo {

// What the column of the types says of a file.
class FileTypes : public QFileIconProvider {
 public:
  QString type(const QFileInfo& file) const override;
};

// The words of a file dialog; `types` has to outlive it.
void dress_file_dialog(QFileDialog& box, FileTypes& types);

// False if the user cancelled. A name without an ending takes that of the filter.
bool ask_open_name(QWidget* parent, CommonDialog& dialog);
bool ask_save_name(QWidget* parent, CommonDialog& dialog);

}  // namespace trelvo
