#include "commands/motore.h"

#include <gtest/gtest.h>

#include "commands/comando.h"
#include "commands/modifica.h"
#include "commands/prompt.h"
#include "commands/puntatore.h"
#include "commands/zoom.h"
#include "support/programma.h"
#include "view/mappa.h"

namespace trelvo {
namespace {

struct Engine : LoneDocument {
  Engine() {
    aggiungi_comandi(bas);
    bas.frmMain.Picture2.Visible = true;
    doc.cmd.comandi.resize(2);
    selzoom(doc, 0, 0, 50, 20);
    doc.MousePointer = pointer_own;
  }
  frmMainForm& frame() { return bas.frmMain; }
  std::string running() { return doc.cmd.comando(); }
  void click(double x, double y) {
    const auto X = static_cast<float>(x * doc.vista.rapscala);
    const auto Y = static_cast<float>(y * doc.vista.rapscala);
    Form_MouseMove(doc, X, Y);
    Form_MouseDown(doc, 1, X, Y);
  }
  void line(double x1, double y1, double x2, double y2) {
    opdis_Click(doc, 1);
    click(x1, y1);
    click(x2, y2);
    clickdes(doc);
  }
  void expect_idle() {
    EXPECT_EQ(running(), "");
    EXPECT_EQ(doc.cmd.passo, 0);
    EXPECT_EQ(frame().Label1.Caption.get(), "Comando: ");
    EXPECT_EQ(frame().Label2.Caption.get(), "");
    EXPECT_FALSE(frame().Text1.Enabled);
    EXPECT_FALSE(frame().Text2.Enabled);
  }
};

TEST(Engine, FirstPrompts) {
  const struct {
    int item;
    const char* prompt;
  } cases[] = {
      {1, " Linea_Dal Punto: "},       {2, " Cerchio_Centro: "},         {3, " Arco_Primo Punto(P.Iniziale): "},
      {5, " Polilinea: 1° Vertice  "}, {6, " Superficie: 1° Vertice  "}, {7, " Rettangolo: Primo Punto: "}};
  for (const auto& c : cases) {
    Engine e;
    opdis_Click(e.doc, c.item);
    EXPECT_EQ(e.frame().Label1.Caption.get(), c.prompt);
    EXPECT_TRUE(e.frame().Text1.Enabled);
    EXPECT_EQ(e.doc.cmd.modificato, 1);
  }
}

TEST(Engine, LinesChainUntilCancelled) {
  Engine e;
  opdis_Click(e.doc, 1);
  e.click(1, 1);
  EXPECT_EQ(e.frame().Label2.Caption.get(), "Al Punto: ");
  e.click(4, 5);
  EXPECT_EQ(e.frame().Text1.Text.get(), " 4, 5");
  e.click(7, 1);
  ASSERT_EQ(e.doc.dis.collLinee.numero(), 2U);
  EXPECT_EQ(e.doc.dis.collLinee(2).Xi, 4);
  EXPECT_EQ(e.doc.dis.collLinee(2).Yf, 1);
  clickdes(e.doc);
  e.expect_idle();
  EXPECT_EQ(e.doc.cmd.ultimocomando, "Linea");
  clickdes(e.doc);
  EXPECT_EQ(e.running(), "Linea");
}

TEST(Engine, CoincidentPointsBeepSevenTimesAndStay) {
  Engine e;
  opdis_Click(e.doc, 1);
  e.click(1, 1);
  e.click(1, 1);
  EXPECT_EQ(e.desktop.beeps, 7);
  EXPECT_EQ(e.doc.cmd.passo, 1);
  EXPECT_EQ(e.doc.dis.collLinee.numero(), 0U);
}

TEST(Engine, RightClickWithNothingToRepeatOnlyBeeps) {
  Engine e;
  e.frame().Label1.Caption = "kept";
  clickdes(e.doc);
  EXPECT_EQ(e.desktop.beeps, 1);
  EXPECT_EQ(e.frame().Label1.Caption.get(), "kept");
}

TEST(Engine, CircleTakesItsRadiusFromTheSecondEntry) {
  Engine e;
  opdis_Click(e.doc, 2);
  e.click(10, 10);
  e.click(13, 14);
  ASSERT_EQ(e.doc.dis.collCerchi.numero(), 1U);
  const Cerchio& c = e.doc.dis.collCerchi(1);
  EXPECT_EQ(c.raggio, 5);
  EXPECT_EQ(c.Xpunto, 15);
  EXPECT_EQ(c.YPunto, 10);
  EXPECT_DOUBLE_EQ(c.perimet, 31.41592653589793);
  EXPECT_EQ(c.campitura, 7);
  e.expect_idle();
}

TEST(Engine, RectangleHasOneVertexOrder) {
  Engine e;
  opdis_Click(e.doc, 7);
  e.click(8, 9);
  e.click(2, 3);
  ASSERT_EQ(e.doc.dis.collRettangoli.numero(), 1U);
  const Rettangolo& r = e.doc.dis.collRettangoli(1);
  const vertice expected[] = {{2, 3}, {2, 9}, {8, 9}, {8, 3}};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(r.vertici.preleva(i + 1), expected[i]);
  EXPECT_EQ(r.supf, 36);
  EXPECT_EQ(r.perimet, 24);
  e.expect_idle();
}

TEST(Engine, ArcEndsAreOrderedByItsThirdPoint) {
  Engine e;
  opdis_Click(e.doc, 3);
  e.click(10, 10);
  e.click(0, 10);
  EXPECT_EQ(e.frame().Label1.Caption.get(), " Arco_Secondo Punto(P.Finale): ");
  EXPECT_EQ(e.frame().Label2.Caption.get(), " Arco_Terzo Punto: ");
  e.click(5, 5);
  opdis_Click(e.doc, 3);
  e.click(10, 10);
  e.click(0, 10);
  e.click(5, 15);
  ASSERT_EQ(e.doc.dis.collArchi.numero(), 2U);
  EXPECT_EQ(e.doc.dis.collArchi(1).p1x, 10);
  EXPECT_EQ(e.doc.dis.collArchi(2).p1x, 0);
  EXPECT_FALSE(e.doc.Line4.Visible);
  e.expect_idle();
}

TEST(Engine, PolylineNeedsTwoVertices) {
  Engine e;
  opdis_Click(e.doc, 5);
  e.click(1, 1);
  clickdes(e.doc);
  EXPECT_EQ(e.desktop.messages.back(), "Inserire almeno due vertici.");
  EXPECT_EQ(e.doc.dis.collPolilinee.numero(), 0U);
  EXPECT_EQ(e.doc.cmd.ultimocomando, "Polilinea");
  clickdes(e.doc);
  e.click(1, 1);
  e.click(5, 1);
  EXPECT_EQ(e.frame().Label1.Caption.get(), " Polilinea: 2° Vertice");
  EXPECT_EQ(e.frame().Label2.Caption.get(), " 3° Vertice");
  gestastiera(e.doc, key_escape);  // finishes it
  ASSERT_EQ(e.doc.dis.collPolilinee.numero(), 1U);
  EXPECT_EQ(e.doc.dis.collPolilinee(1).vertic(), 2);
}

TEST(Engine, EscThrowsASurfaceAway) {
  Engine e;
  opdis_Click(e.doc, 6);
  e.click(1, 1);
  e.click(5, 1);
  e.click(5, 5);
  gestastiera(e.doc, key_escape);
  EXPECT_EQ(e.doc.dis.collSuperfici.numero(), 0U);
  e.expect_idle();
}

TEST(Engine, VertexCountOverflowIsAnErrorThatLosesNothing) {
  Engine e;
  opdis_Click(e.doc, 5);
  e.click(1, 1);
  e.bas.cur.curPolilinea.vertic(32767);
  EXPECT_THROW(e.click(2, 2), RuntimeError);
  EXPECT_EQ(e.bas.cur.curPolilinea.vertic(), 32767);
}

TEST(Engine, ZoomSuspendsAndResumesEveryDrawingCommand) {
  for (const int item : {1, 2, 3, 5, 6, 7}) {
    Engine e;
    e.line(0, 0, 20, 10);
    opdis_Click(e.doc, item);
    e.click(3, 4);
    const std::string name = e.running();
    const int level = e.doc.cmd.livello;
    selezoom_Click(e.doc, 2);
    EXPECT_EQ(e.running(), name);
    EXPECT_EQ(e.doc.cmd.passo, 1) << name;
    EXPECT_EQ(e.doc.cmd.livello, level + 1);
    EXPECT_EQ(e.doc.cmd.corrente().x1, 3);
    EXPECT_EQ(e.frame().Text1.Text.get(), " 3, 4");
    EXPECT_EQ(e.doc.cmd.comandosospeso.tipo(), "");
    EXPECT_EQ(e.doc.imp.passostep, 1);
  }
}

TEST(Engine, TransparentZoomSaysSoAndEscTakesTheCommandUpAgain) {
  for (const bool by_right_click : {false, true}) {
    Engine e;
    e.line(0, 0, 20, 10);
    opdis_Click(e.doc, 1);
    e.click(3, 4);
    selezoom_Click(e.doc, 1);
    EXPECT_EQ(e.frame().Label1.Caption.get(), "' Zoom_Primo punto: ");
    if (by_right_click) {
      clickdes(e.doc);
    } else {
      gestastiera(e.doc, key_escape);
    }
    EXPECT_EQ(e.running(), "Linea");
    e.click(8, 4);
    EXPECT_EQ(e.doc.dis.collLinee.numero(), 2U);
    EXPECT_EQ(e.doc.dis.collLinee(2).Xi, 3);
  }
}

TEST(Engine, RefusedZoomTakesTheCommandUpAgain) {
  Engine e;
  opdis_Click(e.doc, 2);
  selezoom_Click(e.doc, 2);
  EXPECT_EQ(e.desktop.messages.back(), "Inutile eseguire: \"Zoom Tutto\" - Disegno Vuoto");
  EXPECT_EQ(e.running(), "Cerchio");
  EXPECT_EQ(e.frame().Label1.Caption.get(), " Cerchio_Centro: ");
}

TEST(Engine, ZoomAreaIsHistoryAndPreviousStepsBack) {
  Engine e;
  e.line(0, 0, 20, 10);
  const double start = e.doc.vista.rapscala;
  memxin(e.doc);
  const auto zoom = [&](double x1, double y1, double x2, double y2) {
    selezoom_Click(e.doc, 1);
    e.click(x1, y1);
    e.click(x2, y2);
    return e.doc.vista.rapscala;
  };
  const double first = zoom(30, 18, 1, 2);
  const double second = zoom(5, 5, 10, 8);
  EXPECT_NE(first, second);
  selezoom_Click(e.doc, 3);
  EXPECT_DOUBLE_EQ(e.doc.vista.rapscala, first);
  selezoom_Click(e.doc, 3);
  EXPECT_NEAR(e.doc.vista.rapscala, start, start * 1e-6);
  e.expect_idle();
}

TEST(Engine, TooSmallAZoomWindowBeepsAndWaits) {
  Engine e;
  e.doc.imp.statostep = spento;
  selezoom_Click(e.doc, 1);
  e.click(1, 1);
  e.click(1.005, 5);
  EXPECT_EQ(e.desktop.beeps, 1);
  EXPECT_EQ(e.doc.cmd.passo, 1);
  e.click(4, 5);
  e.expect_idle();
}

TEST(Engine, PercentIsTheScaleItself) {
  Engine e;
  e.line(0, 0, 20, 10);
  zoomperc(e.doc, "50%");
  EXPECT_DOUBLE_EQ(e.doc.vista.rapscala, 0.5);
  const int level = e.doc.cmd.livello;
  zoomperc(e.doc, "100%");
  EXPECT_DOUBLE_EQ(e.doc.vista.rapscala, 0.5);
  EXPECT_EQ(e.doc.cmd.livello, level);
  e.expect_idle();
  opdis_Click(e.doc, 1);
  sospendi(e.doc);
  EXPECT_THROW(zoomperc(e.doc, "0.4"), RuntimeError);
  EXPECT_EQ(e.running(), "Linea");
}

TEST(Engine, CancellingAnotherLevelStillLeavesItIdle) {
  for (const int n : {0, 1, 77, -1}) {
    Engine e;
    opdis_Click(e.doc, 1);
    e.click(1, 1);
    annullacomando(e.doc, n);
    e.expect_idle();
  }
}

TEST(Engine, ScrollingKeepsTheRunningCommand) {
  Engine e;
  opdis_Click(e.doc, 1);
  e.click(3, 4);
  impscroll(e.doc);
  const float left = e.doc.surface.ScaleLeft;
  e.doc.vista.xmaxdis = 50;
  e.doc.vista.ymaxdis = 20;
  e.doc.HScroll1.Value = 53;
  HScroll1_Change(e.doc);
  // Three twentieths of the shorter side, 30 units.
  EXPECT_FLOAT_EQ(e.doc.surface.ScaleLeft, left + 4.5F * 300);
  EXPECT_EQ(e.running(), "Linea");
  EXPECT_EQ(e.doc.cmd.passo, 1);
  EXPECT_EQ(e.doc.cmd.livello, 1);
}

TEST(Engine, EditCommandsRefuseAnEmptyDrawing) {
  Engine e;
  modifica_Click(e.doc, 3);
  EXPECT_EQ(e.desktop.messages.back(), "Impossibile eseguire: \"Cancella\" - Disegno Vuoto");
  modifica_Click(e.doc, 1);
  EXPECT_EQ(e.desktop.messages.size(), 1U);
}

TEST(Engine, MeasureStaysAtItsFirstPoint) {
  Engine e;
  mnudistanza_Click(e.doc);
  e.click(0, 0);
  e.click(3, 4);
  EXPECT_EQ(e.frame().Text1.Text.get(), "   P1=(0,00;0,00) - P2=(3,00;4,00)   DISTANZA = 5,000 ANGOLO = 53,1301");
  EXPECT_TRUE(e.frame().Text1.Locked);
  e.click(0, 5);
  EXPECT_EQ(e.frame().Text1.Text.get(), "   P1=(0,00;0,00) - P2=(0,00;5,00)   DISTANZA = 5,000 ANGOLO = 90,0000");
  clickdes(e.doc);
  EXPECT_FALSE(e.frame().Text1.Locked);
  EXPECT_EQ(e.frame().Text1.ForeColor.get(), 0);
}

}  // namespace
}  // namespace trelvo
