#include "windows/mnemonics.h"

#include <QSet>

namespace trelvo {

namespace {

class Letters {
 public:
  // The caption with its own letter, if it has one that is free; else without any.
  QString keep(const QString& caption) {
    const qsizetype mark = caption.indexOf('&');
    if (mark >= 0 && mark + 1 < caption.size() && take(caption[mark + 1])) return caption;
    return QString(caption).remove('&');
  }

  QString give(const QString& caption) {
    if (caption.contains('&')) return caption;
    for (const bool initials : {true, false}) {
      for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool initial = i == 0 || caption[i - 1].isSpace();
        if ((initial || !initials) && take(caption[i])) return QString(caption).insert(i, '&');
      }
    }
    return caption;
  }

 private:
  bool take(QChar letter) {
    const QChar key = letter.toUpper();
    // Only plain letters are on every keyboard.
    if (key < 'A' || key > 'Z' || taken_.contains(key)) return false;
    taken_.insert(key);
    return true;
  }

  QSet<QChar> taken_;
};

}  // namespace

QStringList with_mnemonics(const QStringList& captions) {
  Letters letters;
  QStringList marked;
  for (const QString& caption : captions) marked.append(letters.keep(caption));
  for (QString& caption : marked) caption = letters.give(caption);
  return marked;
}

}  // namespace trelvo
