#include "windows/icona.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <memory>
#include <utility>

#include "windows/figure_svg.h"

// The pictures lie in a static library, whose resources nobody registers by himself. Must stand outside any namespace.
static void registra_icone() { Q_INIT_RESOURCE(icons); }

namespace trelvo {

namespace {

constexpr qreal kOpacitaDisabilitata = 0.35;

class MotoreIcona : public QIconEngine {
 public:
  explicit MotoreIcona(DisegnoSvg disegno) : disegno_(std::make_shared<const DisegnoSvg>(std::move(disegno))) {}

  void paint(QPainter* pittore, const QRect& area, QIcon::Mode modo, QIcon::State) override {
    pittore->save();
    if (modo == QIcon::Disabled) pittore->setOpacity(pittore->opacity() * kOpacitaDisabilitata);
    dipingi(*pittore, *disegno_, area);
    pittore->restore();
  }

  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap immagine(misura);
    immagine.fill(Qt::transparent);
    QPainter pittore(&immagine);
    paint(&pittore, QRect(QPoint(0, 0), misura), modo, stato);
    return immagine;
  }

  QIconEngine* clone() const override { return new MotoreIcona(*this); }

 private:
  std::shared_ptr<const DisegnoSvg> disegno_;
};

}  // namespace

QIcon icona(const QString& nome) {
  registra_icone();
  QFile file(QStringLiteral(":/icons/%1.svg").arg(nome));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new MotoreIcona(leggi_svg(file)));
}

}  // namespace trelvo
