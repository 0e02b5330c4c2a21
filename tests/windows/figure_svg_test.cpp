#include "windows/figure_svg.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <cmath>

namespace trelvo {
namespace {

DisegnoSvg letto(const QByteArray& testo) {
  QBuffer origine;
  origine.setData(testo);
  origine.open(QIODevice::ReadOnly);
  return leggi_svg(origine);
}

TEST(FigureSvg, ReadsEachElement) {
  const struct {
    const char* elemento;
    QRectF ingombro;
    bool chiuso;
  } casi[] = {
      {R"(<line x1="1" y1="2" x2="5" y2="9"/>)", {1, 2, 4, 7}, false},
      {R"(<polyline points="1,2 5,2 5,9"/>)", {1, 2, 4, 7}, false},
      {R"(<polygon points="1,2 5,2 5,9"/>)", {1, 2, 4, 7}, true},
      {R"(<rect x="1" y="2" width="4" height="7"/>)", {1, 2, 4, 7}, true},
      {R"(<circle cx="5" cy="6" r="3"/>)", {2, 3, 6, 6}, true},
      {R"(<path d="M1 2 L5 2 5 9 Z"/>)", {1, 2, 4, 7}, true},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.elemento);
    const DisegnoSvg disegno = letto(QByteArray("<svg viewBox=\"0 0 24 12\">") + caso.elemento + "</svg>");
    ASSERT_EQ(disegno.figure.size(), 1U);
    const QPainterPath& forma = disegno.figure[0].forma;
    EXPECT_EQ(disegno.misura, QSizeF(24, 12));
    EXPECT_EQ(forma.boundingRect(), caso.ingombro);
    EXPECT_EQ(QPointF(forma.elementAt(0)) == forma.currentPosition(), caso.chiuso);
  }
}

TEST(FigureSvg, ReadsColoursAndWidth) {
  const DisegnoSvg disegno = letto(R"(<svg><rect width="2" height="2" stroke="#102030" fill="none" stroke-width="1.5"/>
                    <rect width="2" height="2" stroke="none" fill="#405060"/></svg>)");
  ASSERT_EQ(disegno.figure.size(), 2U);
  EXPECT_EQ(disegno.figure[0].tratto, QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(disegno.figure[0].spessore, 1.5);
  EXPECT_FALSE(disegno.figure[0].riemp.isValid());
  EXPECT_FALSE(disegno.figure[1].tratto.isValid());
  EXPECT_EQ(disegno.figure[1].riemp, QColor(0x40, 0x50, 0x60));
}

TEST(FigureSvg, PassesOverWhatItCannotRead) {
  const struct {
    const char* testo;
    size_t figure;
  } casi[] = {
      {"", 0},
      {"no picture", 0},
      {"<svg><text>a</text></svg>", 0},
      {R"(<svg><line x1="1" x2="2"/><broken)", 1},
  };
  for (const auto& caso : casi) EXPECT_EQ(letto(caso.testo).figure.size(), caso.figure) << caso.testo;
}

TEST(FigureSvg, PathDataStopsAtTheFirstFault) {
  const struct {
    const char* dati;
    QPointF fine;
  } casi[] = {
      {"M1 2", {1, 2}},           {"M1,2L3,4", {3, 4}},          {"M1 2 3 4 5 6", {5, 6}},
      {"M1 2 L-.5-3", {-.5, -3}}, {"M1 2 L3", {1, 2}},           {"M1 2 H9 L3 4", {1, 2}},
      {"M1 2 L3 4 Z", {1, 2}},    {"M0 0 C1 1 2 1 3 0", {3, 0}}, {"M1 2 L3 4 Z 5 6", {1, 2}},
  };
  for (const auto& caso : casi) EXPECT_EQ(forma_percorso(caso.dati).currentPosition(), caso.fine) << caso.dati;
}

// Points of the path lie on the circle, end where they are told to, and pass on the asked side.
TEST(FigureSvg, ArcsFollowTheirFlags) {
  const struct {
    const char* dati;
    QPointF centro;
    double raggio;
    QPointF fine;
    QPointF meta;
  } casi[] = {
      {"M10 0 A10 10 0 0 1 0 10", {0, 0}, 10, {0, 10}, {std::sqrt(50), std::sqrt(50)}},
      {"M10 0 A10 10 0 1 1 0 10", {10, 10}, 10, {0, 10}, {10 + std::sqrt(50), 10 + std::sqrt(50)}},
      {"M10 0 A10 10 0 0 0 0 10", {10, 10}, 10, {0, 10}, {10 - std::sqrt(50), 10 - std::sqrt(50)}},
      {"M10 0 A10 10 0 1 0 0 10", {0, 0}, 10, {0, 10}, {-std::sqrt(50), -std::sqrt(50)}},
      {"M-5 0 A5 5 0 0 1 5 0", {0, 0}, 5, {5, 0}, {0, -5}},
      {"M-5 0 A1 1 0 0 1 5 0", {0, 0}, 5, {5, 0}, {0, -5}},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.dati);
    const QPainterPath forma = forma_percorso(caso.dati);
    EXPECT_EQ(forma.currentPosition(), caso.fine);
    for (int i = 0; i <= 16; ++i) {
      const QPointF raggio = forma.pointAtPercent(i / 16.0) - caso.centro;
      EXPECT_NEAR(std::hypot(raggio.x(), raggio.y()), caso.raggio, 0.01) << i;
    }
    const QPointF meta = forma.pointAtPercent(0.5);
    EXPECT_NEAR(meta.x(), caso.meta.x(), 0.01);
    EXPECT_NEAR(meta.y(), caso.meta.y(), 0.01);
  }
}

TEST(FigureSvg, ArcsOfTurnedEllipsesAndOfNoRadius) {
  const QRectF verticale = forma_percorso("M0 -4 A4 2 90 0 1 0 4").boundingRect();
  EXPECT_NEAR(verticale.width(), 2, 1e-6);
  EXPECT_NEAR(verticale.height(), 8, 1e-6);
  EXPECT_EQ(forma_percorso("M0 0 A0 5 0 0 1 4 3").length(), 5);
  EXPECT_EQ(forma_percorso("M4 3 A5 5 0 0 1 4 3").length(), 0);
}

// Each picture of the program is read whole, stays in its box, and uses no colour that a light or dark desktop
// swallows.
TEST(FigureSvg, TheProgramsIcons) {
  const QDir cartella(QStringLiteral(TRELVO_ICONS));
  const QStringList nomi = cartella.entryList({QStringLiteral("*.svg")});
  ASSERT_FALSE(nomi.isEmpty());
  for (const QString& nome : nomi) {
    if (nome == "trelvo.svg") continue;  // the program's own, larger and in its own colours
    SCOPED_TRACE(nome.toStdString());
    QFile file(cartella.filePath(nome));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const qsizetype elementi = file.readAll().count("stroke-width=");
    file.seek(0);
    const DisegnoSvg disegno = leggi_svg(file);
    // The program's own icon stands on its tile; the others on whatever a theme has.
    const bool propria = nome == QStringLiteral("trelvo.svg");
    EXPECT_EQ(disegno.misura, propria ? QSizeF(64, 64) : QSizeF(24, 24));
    EXPECT_EQ(static_cast<qsizetype>(disegno.figure.size()), elementi);
    for (const FiguraSvg& figura : disegno.figure) {
      const qreal mezzo = figura.spessore / 2;
      const QRectF ingombro = figura.forma.boundingRect().adjusted(-mezzo, -mezzo, mezzo, mezzo);
      EXPECT_TRUE(QRectF(QPointF(0, 0), disegno.misura).contains(ingombro));
      const QColor colore = figura.tratto.isValid() ? figura.tratto : figura.riemp;
      EXPECT_TRUE(colore.isValid());
      if (propria) continue;
      EXPECT_GT(colore.value(), 96);
      EXPECT_GT(colore.hsvSaturation(), 96);
    }
  }
}

TEST(FigureSvg, PaintsIntoTheMiddleOfItsPlace) {
  QImage immagine(40, 20, QImage::Format_ARGB32);
  immagine.fill(Qt::white);
  QPainter pittore(&immagine);
  dipingi(pittore,
          letto(R"(<svg viewBox="0 0 10 10"><rect width="10" height="10" stroke="none" fill="#ff0000"/></svg>)"),
          QRectF(0, 0, 40, 20));
  pittore.end();
  const struct {
    QPoint punto;
    QColor colore;
  } casi[] = {{{9, 10}, Qt::white}, {{10, 0}, Qt::red}, {{29, 19}, Qt::red}, {{30, 10}, Qt::white}};
  for (const auto& caso : casi) EXPECT_EQ(immagine.pixelColor(caso.punto), caso.colore) << caso.punto.x();
}

}  // namespace
}  // namespace trelvo
