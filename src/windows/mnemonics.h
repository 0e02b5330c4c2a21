// Letters that choose the items of a menu by the keyboard.
#pragma once

#include <QStringList>

namespace trelvo {

// The captions of one menu, each with an "&" before its letter. A caption keeps the one it has, unless another before
// it has the same; the others take the first letter of a word that is free, or any. None is left for an empty caption.
QStringList with_mnemonics(const QStringList& captions);

}  // namespace trelvo
