#pragma once

#include <QColor>
#include <QPainterPath>
#include <QSizeF>
#include <vector>

class QIODevice;
class QPainter;

namespace trelvo {

// One outline of a picture: an invalid colour means that it is not stroked or not filled.
struct FiguraSvg {
  QPainterPath forma;
  QColor tratto;
  QColor riemp;
  qreal spessore = 1;
};

// A line drawing in the units of its own box, whose corner is (0, 0).
struct DisegnoSvg {
  QSizeF misura;
  std::vector<FiguraSvg> figure;
};

// Reads the small part of SVG that the program's icons are written in: line, polyline, polygon, circle, rect and path
// (absolute M, L, C, A, Z), each with its own stroke, fill and stroke-width. Ends and joins are round. Anything else is
// passed over; a text that is no SVG gives a drawing without figures.
DisegnoSvg leggi_svg(QIODevice& origine);

// The outline of a path's data; it stops at the first thing that it cannot read.
QPainterPath forma_percorso(const QString& dati);

// Adds an arc of an ellipse from the current point to `fine`, as the path command A: radii, turn of the ellipse's axes
// in degrees, the larger of the two arcs or the smaller, with growing angles (clockwise on the screen) or not.
void aggiungi_arco(QPainterPath& forma, QSizeF raggi, qreal gradi, bool grande, bool orario, QPointF fine);

// Draws the figures with the drawing's box fitted into `area`, in its middle.
void dipingi(QPainter& pittore, const DisegnoSvg& disegno, const QRectF& area);

}  // namespace trelvo
