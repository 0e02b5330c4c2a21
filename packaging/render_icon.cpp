// Draws an icon at a size: render_icon FILE.svg SIDE FILE.png
#include <QFile>
#include <QImage>
#include <QPainter>
#include <cstdio>

#include "windows/figure_svg.h"

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("render_icon FILE.svg SIDE FILE.png\n", stderr);
    return 2;
  }
  QFile source(argv[1]);
  const int side = QByteArray(argv[2]).toInt();
  if (!source.open(QIODevice::ReadOnly) || side <= 0) return 1;
  const trelvo::DisegnoSvg drawing = trelvo::leggi_svg(source);
  QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  trelvo::dipingi(painter, drawing, picture.rect());
  painter.end();
  return !drawing.figure.empty() && picture.save(argv[3], "PNG") ? 0 : 1;
}
