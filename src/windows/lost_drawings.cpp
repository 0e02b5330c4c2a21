#include "windows/lost_drawings.h"

#include <QDateTime>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/perduti.h"
#include "windows/binding.h"
#include "windows/desktop_qt.h"
#include "windows/frame_window.h"

namespace trelvo {

namespace {

constexpr int text_width = 380;
constexpr int margin = 12;

QString words(const disegnoperduto& lost) {
  const QString name = qt(lost.nome);
  if (lost.copia.empty()) {
    return QString("Il salvataggio di \"%1\" è stato interrotto: accanto c'è la copia di prima.").arg(name);
  }
  const QDateTime copied = QFileInfo(qt(lost.copia)).lastModified();
  return QString("\"%1\" è stato chiuso senza salvare le ultime modifiche: ne resta la copia del %2.")
      .arg(name, QLocale().toString(copied, QLocale::ShortFormat));
}

}  // namespace

LostDrawings::LostDrawings(DesktopQt& desktop, copieaperte& copies, std::vector<disegnoperduto> lost)
    : QFrame(desktop.frame()),
      desktop_(desktop),
      copies_(copies),
      lost_(std::move(lost)),
      place_(desktop.frame()->documents_area()),
      text_(new QLabel(this)) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  setAutoFillBackground(true);
  setAccessibleName("Disegni da recuperare");
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setFixedWidth(text_width);
  auto* recover = new QPushButton("&Recupera", this);
  auto* drop = new QPushButton("Eli&mina", this);
  auto* later = new QPushButton("&Più tardi", this);
  recover->setToolTip("Apre il disegno com'era");
  drop->setToolTip("Lascia il disegno com'è nel suo file");
  later->setToolTip("Chiede di nuovo al prossimo avvio");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* button : {recover, drop, later}) buttons->addWidget(button);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->addWidget(text_);
  column->addLayout(buttons);
  QObject::connect(recover, &QPushButton::clicked, this, [this] {
    const disegnoperduto first = lost_.front();
    next();
    desktop_.run([&] { riapri_perduto(desktop_.bas(), copies_, first); });
  });
  QObject::connect(drop, &QPushButton::clicked, this, [this] {
    copieaperte::dimentica(lost_.front());
    next();
  });
  QObject::connect(later, &QPushButton::clicked, this, [this] { next(); });
  place_->installEventFilter(this);
  show_first();
  show();
  raise();
}

void LostDrawings::next() {
  lost_.erase(lost_.begin());
  if (lost_.empty()) {
    hide();
    deleteLater();
  } else {
    show_first();
  }
}

void LostDrawings::show_first() {
  const QString others = lost_.size() > 1 ? QString(" (1 di %1)").arg(lost_.size()) : QString();
  text_->setText(words(lost_.front()) + others);
  settle();
}

void LostDrawings::settle() {
  adjustSize();
  const QPoint corner = place_->mapTo(parentWidget(), QPoint(place_->width(), place_->height()));
  move(corner.x() - width() - margin, corner.y() - height() - margin);
}

bool LostDrawings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) settle();
  return QFrame::eventFilter(watched, event);
}

}  // namespace trelvo
