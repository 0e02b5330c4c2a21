#include "windows/figure_svg.h"

#include <QIODevice>
#include <QPainter>
#include <QPolygonF>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace trelvo {

namespace {

constexpr qreal kPi = std::numbers::pi_v<qreal>;

using Attributi = QXmlStreamAttributes;

qreal numero(const Attributi& attributi, const char* nome) { return attributi.value(QLatin1String(nome)).toDouble(); }

QStringList parole(const QString& dati) {
  static const QRegularExpression parola(QStringLiteral("[A-Za-z]|[-+]?(?:\\d+\\.?\\d*|\\.\\d+)"));
  QStringList trovate;
  for (auto trovata = parola.globalMatch(dati); trovata.hasNext();) trovate.append(trovata.next().captured());
  return trovate;
}

QPolygonF vertici(const Attributi& attributi) {
  const QStringList numeri = parole(attributi.value(QLatin1String("points")).toString());
  QPolygonF punti;
  for (qsizetype i = 0; i + 1 < numeri.size(); i += 2) punti << QPointF(numeri[i].toDouble(), numeri[i + 1].toDouble());
  return punti;
}

QPainterPath forma_elemento(const QString& nome, const Attributi& attributi) {
  const auto valore = [&](const char* quale) { return numero(attributi, quale); };
  QPainterPath forma;
  if (nome == QLatin1String("line")) {
    forma.moveTo(valore("x1"), valore("y1"));
    forma.lineTo(valore("x2"), valore("y2"));
  } else if (nome == QLatin1String("polyline")) {
    forma.addPolygon(vertici(attributi));
  } else if (nome == QLatin1String("polygon")) {
    forma.addPolygon(vertici(attributi));
    forma.closeSubpath();
  } else if (nome == QLatin1String("circle")) {
    forma.addEllipse(QPointF(valore("cx"), valore("cy")), valore("r"), valore("r"));
  } else if (nome == QLatin1String("rect")) {
    forma.addRect(valore("x"), valore("y"), valore("width"), valore("height"));
  } else if (nome == QLatin1String("path")) {
    forma = forma_percorso(attributi.value(QLatin1String("d")).toString());
  }
  return forma;
}

QColor colore(const Attributi& attributi, const char* nome) {
  const QString testo = attributi.value(QLatin1String(nome)).toString();
  return testo.startsWith(QLatin1Char('#')) ? QColor(testo) : QColor();
}

// The box of the drawing is as large as the last two numbers of its viewBox say.
QSizeF misura_svg(const Attributi& attributi) {
  const QStringList numeri = parole(attributi.value(QLatin1String("viewBox")).toString());
  return numeri.size() == 4 ? QSizeF(numeri[2].toDouble(), numeri[3].toDouble()) : QSizeF();
}

// Walks a path's data word by word.
class LettorePercorso {
 public:
  explicit LettorePercorso(const QString& dati) : parole_(parole(dati)) {}

  QPainterPath leggi() {
    while (prossima_ < parole_.size() && !errore_) esegui(comando());
    return forma_;
  }

 private:
  // Further numbers after a command repeat it; after a move they are lines.
  QChar comando() {
    const QString& parola = parole_[prossima_];
    if (parola[0].isLetter()) {
      comando_ = parola[0];
      ++prossima_;
    } else if (comando_ == QLatin1Char('M')) {
      comando_ = QLatin1Char('L');
    } else if (comando_ == QLatin1Char('Z')) {
      comando_ = QChar();
    }
    return comando_;
  }

  qreal numero() {
    bool letto = false;
    const qreal valore = prossima_ < parole_.size() ? parole_[prossima_++].toDouble(&letto) : 0;
    if (!letto) errore_ = true;
    return valore;
  }

  QPointF punto() {
    const qreal x = numero();
    return {x, numero()};
  }

  void esegui(QChar comando) {
    switch (comando.unicode()) {
      case 'M':
        return traccia([this](QPointF fine) { forma_.moveTo(fine); });
      case 'L':
        return traccia([this](QPointF fine) { forma_.lineTo(fine); });
      case 'C':
        return curva();
      case 'A':
        return arco();
      case 'Z':
        return forma_.closeSubpath();
      default:
        errore_ = true;
    }
  }

  template <typename Azione>
  void traccia(Azione azione) {
    const QPointF fine = punto();
    if (!errore_) azione(fine);
  }

  void curva() {
    const QPointF primo = punto();
    const QPointF secondo = punto();
    traccia([&](QPointF fine) { forma_.cubicTo(primo, secondo, fine); });
  }

  void arco() {
    const QPointF raggi = punto();
    const qreal gradi = numero();
    const bool grande = numero() != 0;
    const bool orario = numero() != 0;
    traccia([&](QPointF fine) { aggiungi_arco(forma_, {raggi.x(), raggi.y()}, gradi, grande, orario, fine); });
  }

  QStringList parole_;
  qsizetype prossima_ = 0;
  QChar comando_;
  QPainterPath forma_;
  bool errore_ = false;
};

// The centre of the unit circle through the origin's opposite points `meta` and -`meta`, on the asked side. Points
// further apart than a diameter have been drawn closer by the caller.
QPointF centro_unitario(QPointF meta, bool grande, bool orario) {
  const qreal quadrato = QPointF::dotProduct(meta, meta);
  const qreal distanza = std::sqrt(std::max<qreal>(0, (1 - quadrato) / quadrato));
  const qreal verso = grande == orario ? -1 : 1;
  return QPointF(meta.y(), -meta.x()) * distanza * verso;
}

// A piece of the unit circle no longer than a quarter, as a cubic.
void aggiungi_quarto(QPainterPath& forma, const QTransform& ellisse, qreal da, qreal ampiezza) {
  const qreal tangente = 4.0 / 3.0 * std::tan(ampiezza / 4);
  const QPointF inizio(std::cos(da), std::sin(da));
  const QPointF fine(std::cos(da + ampiezza), std::sin(da + ampiezza));
  forma.cubicTo(ellisse.map(inizio + tangente * QPointF(-inizio.y(), inizio.x())),
                ellisse.map(fine - tangente * QPointF(-fine.y(), fine.x())), ellisse.map(fine));
}

}  // namespace

void aggiungi_arco(QPainterPath& forma, QSizeF raggi, qreal gradi, bool grande, bool orario, QPointF fine) {
  const QPointF inizio = forma.currentPosition();
  if (inizio == fine) return;
  if (raggi.width() == 0 || raggi.height() == 0) return forma.lineTo(fine);

  // In the plane where the ellipse is the unit circle the rest is plain; radii too small for the two points grow.
  QTransform ellisse;
  ellisse.rotate(gradi).scale(std::abs(raggi.width()), std::abs(raggi.height()));
  QPointF meta = ellisse.inverted().map((inizio - fine) / 2);
  const qreal lunghezza = std::hypot(meta.x(), meta.y());
  if (lunghezza > 1) {
    ellisse.scale(lunghezza, lunghezza);
    meta /= lunghezza;
  }
  const QPointF centro = centro_unitario(meta, grande, orario);
  const QPointF medio = (inizio + fine) / 2;
  const QPointF spostamento = medio + ellisse.map(centro);
  ellisse *= QTransform::fromTranslate(spostamento.x(), spostamento.y());

  const qreal da = std::atan2(meta.y() - centro.y(), meta.x() - centro.x());
  qreal ampiezza = std::atan2(-meta.y() - centro.y(), -meta.x() - centro.x()) - da;
  if (orario && ampiezza < 0) ampiezza += 2 * kPi;
  if (!orario && ampiezza > 0) ampiezza -= 2 * kPi;
  const int quarti = std::max(1, static_cast<int>(std::ceil(std::abs(ampiezza) / (kPi / 2) - 1e-9)));
  for (int i = 0; i < quarti; ++i) aggiungi_quarto(forma, ellisse, da + ampiezza * i / quarti, ampiezza / quarti);
}

QPainterPath forma_percorso(const QString& dati) { return LettorePercorso(dati).leggi(); }

DisegnoSvg leggi_svg(QIODevice& origine) {
  DisegnoSvg disegno;
  QXmlStreamReader lettore(&origine);
  while (!lettore.atEnd()) {
    if (lettore.readNext() != QXmlStreamReader::StartElement) continue;
    const Attributi attributi = lettore.attributes();
    if (lettore.name() == QLatin1String("svg")) disegno.misura = misura_svg(attributi);
    FiguraSvg figura;
    figura.forma = forma_elemento(lettore.name().toString(), attributi);
    figura.tratto = colore(attributi, "stroke");
    figura.riemp = colore(attributi, "fill");
    figura.spessore = numero(attributi, "stroke-width");
    if (!figura.forma.isEmpty()) disegno.figure.push_back(figura);
  }
  return disegno;
}

void dipingi(QPainter& pittore, const DisegnoSvg& disegno, const QRectF& area) {
  if (disegno.misura.isEmpty()) return;
  const qreal scala = std::min(area.width() / disegno.misura.width(), area.height() / disegno.misura.height());
  const QSizeF misura = disegno.misura * scala;
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.translate(area.center() - QPointF(misura.width(), misura.height()) / 2);
  pittore.scale(scala, scala);
  for (const FiguraSvg& figura : disegno.figure) {
    const QPen penna(figura.tratto, figura.spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pittore.setPen(figura.tratto.isValid() ? penna : QPen(Qt::NoPen));
    pittore.setBrush(figura.riemp.isValid() ? QBrush(figura.riemp) : QBrush(Qt::NoBrush));
    pittore.drawPath(figura.forma);
  }
  pittore.restore();
}

}  // namespace trelvo
