#pragma once

#include <QIcon>

class QString;

namespace trelvo {

// The icon of that name in icons/, without its ending, drawn anew at each size and scale; pale when disabled. A name
// that is not there gives a null icon.
QIcon icona(const QString& nome);

}  // namespace trelvo
