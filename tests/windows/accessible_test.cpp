// What a screen reader and a keyboard find in each form: every control has a name, and the keyboard reaches it.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <set>

#include "app/app.h"
#include "report/videoscritt.h"
#include "windows/desktop_qt.h"
#include "windows/report_window.h"

namespace trelvo {
namespace {

bool wants_name(const QAccessibleInterface& control) {
  static const std::set<QAccessible::Role> roles{
      QAccessible::Button,   QAccessible::CheckBox,    QAccessible::RadioButton, QAccessible::EditableText,
      QAccessible::List,     QAccessible::ScrollBar,   QAccessible::ProgressBar, QAccessible::MenuItem,
      QAccessible::ComboBox, QAccessible::ButtonMenu,  QAccessible::Grouping,    QAccessible::SpinBox,
      QAccessible::ToolBar,  QAccessible::PageTabList, QAccessible::Table,       QAccessible::Tree};
  return roles.contains(control.role()) || control.state().focusable;
}

// The inner parts of Qt's own views are named by the view.
bool part_of_view(const QAccessibleInterface& control) {
  for (QObject* object = control.object(); object != nullptr; object = object->parent()) {
    if (object->objectName().startsWith("qt_scrollarea_") || object->objectName().startsWith("qt_toolbar_ext"))
      return true;
  }
  return false;
}

struct Found {
  int named = 0;
  std::string nameless;
};

void walk(const QAccessibleInterface& control, const std::string& path, Found& found) {
  const std::string here = path + "/" + (control.object() ? control.object()->metaObject()->className() : "?");
  if (control.state().invisible) return;
  if (wants_name(control) && !part_of_view(control)) {
    if (control.text(QAccessible::Name).isEmpty()) {
      found.nameless += "  " + here + "\n";
    } else {
      ++found.named;
    }
  }
  for (int i = 0; i < control.childCount(); ++i) {
    if (const QAccessibleInterface* child = control.child(i)) walk(*child, here, found);
  }
}

// Everything that takes a click takes the keyboard too: by Tab, or with the arrows among its like.
std::string unreached(const QWidget& window) {
  std::set<const QWidget*> reached;
  const QWidget* at = &window;
  do {
    at = at->nextInFocusChain();
    if ((at->focusPolicy() & Qt::TabFocus) != 0) reached.insert(at);
  } while (at != &window);
  // Of a group of options Tab reaches the chosen one.
  const auto among_its_like = [&](const QWidget* widget) {
    if (qobject_cast<const QRadioButton*>(widget) == nullptr) return false;
    const auto alike = widget->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    return std::any_of(alike.begin(), alike.end(), [&](const QWidget* other) { return reached.contains(other); });
  };
  std::string missing;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const bool wanted = widget->isVisibleTo(&window) && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
    const bool inner = widget->objectName().startsWith("qt_") || widget->focusProxy() != nullptr;
    if (wanted && !inner && !reached.contains(widget) && !among_its_like(widget))
      missing += std::string("  ") + widget->metaObject()->className() + "\n";
  }
  return missing;
}

class Accessible : public testing::Test {
 protected:
  Accessible() : bas(desktop, folder.path().toStdString()) {
    desktop.attach(bas);
    prepara(bas);
    desktop.run([&] { Main(bas, ""); });
    auto* nuovo = dynamic_cast<MenuItem*>(bas.frmMain.find("gestfile", 1));
    desktop.run([&] { scegli(*nuovo); });
  }
  ~Accessible() override { desktop.hide_frame(); }

  distipo& doc() { return *bas.attivo(); }

  MenuItem& item(const std::string& name, int index = no_index) {
    auto* found = dynamic_cast<MenuItem*>(doc().find(name, index));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void choose(const std::string& name, int index = no_index) {
    desktop.run([&] { scegli(item(name, index)); });
  }
  void click(double x, double y) {
    const auto scale = static_cast<float>(doc().vista.rapscala);
    desktop.run([&] { Form_MouseDown(doc(), 1, static_cast<float>(x) * scale, static_cast<float>(y) * scale); });
  }
  void right_click() {
    desktop.run([&] { Form_MouseDown(doc(), 2, 0, 0); });
  }

  // Runs what opens that many modal windows, one that comes back counted again, looks at each one as it stands, does
  // `inside` with it once, and closes it.
  void look(int windows, const std::function<void()>& opens, const std::function<void(QWidget&)>& inside = {}) {
    int seen = 0;
    bool done = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
      QWidget* window = QApplication::activeModalWidget();
      if (window == nullptr || !window->isVisible()) return;
      expect_named(*window);
      EXPECT_EQ(unreached(*window), "") << window->windowTitle().toStdString();
      ++seen;
      if (inside && !done) {
        done = true;
        // Not from here: a timer does not run while it runs.
        QTimer::singleShot(0, window, [inside, window] { inside(*window); });
        return;
      }
      window->close();
    });
    watch.start(5);
    opens();
    EXPECT_EQ(seen, windows);
  }

  static void expect_named(QWidget& window, int least = 3) {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(face, nullptr);
    Found found;
    walk(*face, "", found);
    EXPECT_EQ(found.nameless, "") << window.windowTitle().toStdString();
    EXPECT_GT(found.named, least) << window.windowTitle().toStdString();
  }

  static QAbstractButton& button(QWidget& window, const QString& text) {
    for (auto* found : window.findChildren<QAbstractButton*>()) {
      if (found->text() == text && found->isEnabled() && found->isVisible()) return *found;
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    return *window.findChild<QAbstractButton*>();
  }

  QTemporaryDir folder;
  DesktopQt desktop;
  trelvobas bas;
};

TEST_F(Accessible, Frame) {
  QApplication::processEvents();
  int frames = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->inherits("QMainWindow")) continue;
    ++frames;
    expect_named(*window, 45);  // menus, toolbars, strips, the drawing
  }
  EXPECT_EQ(frames, 1);
}

TEST_F(Accessible, Settings) {
  look(
      3, [&] { choose("aiutdis", 1); }, [](QWidget& window) { button(window, "Modifica").click(); });
  look(1, [&] { choose("mnutipolinea"); });
  look(1, [&] { choose("mnutiposup"); });
  look(1, [&] { choose("mnutipotesto"); });
}

TEST_F(Accessible, Report) {
  videoscritt report(desktop, folder.path().toStdString());
  ReportWindow window(desktop, report);
  desktop.run([&] { apri_relazione(report, ""); });
  QApplication::processEvents();
  expect_named(window, 15);  // menus, buttons, the text
  const auto choose_there = [&](const std::string& name, int index) {
    auto* found = dynamic_cast<MenuItem*>(report.find(name, index));
    ASSERT_NE(found, nullptr);
    desktop.run([&] { scegli(*found); });
  };
  look(1, [&] { choose_there("modifi", 5); });
  look(1, [&] { choose_there("allinea", 5); });
}

TEST_F(Accessible, Printing) {
  look(
      3, [&] { choose("opfile", 8); }, [](QWidget& window) { button(window, "Spessore Linee").click(); });
}

void press(QWidget& widget, Qt::Key key, const QString& text) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
  }
}

// Enter confirms a box that looks at its keys too, and the sheet behind shows the new thickness.
TEST_F(Accessible, EnterConfirmsTheThicknesses) {
  choose("opdis", 1);
  click(2, 2);
  click(8, 5);
  right_click();
  int steps = 0;
  QTimer::singleShot(0, [&] {
    QWidget& printing = *QApplication::activeModalWidget();
    const QImage before = printing.grab().toImage();
    QTimer::singleShot(0, [&] {
      QWidget& thicknesses = *QApplication::activeModalWidget();
      auto* black = thicknesses.findChild<QLineEdit*>();
      black->selectAll();
      press(*black, Qt::Key_9, "9");
      press(*black, Qt::Key_Return, "\r");
      EXPECT_FALSE(thicknesses.isVisible());
      thicknesses.close();
      ++steps;
    });
    button(printing, "Spessore Linee").click();
    EXPECT_EQ(bas.spessoristampa[0], 9.F);
    QApplication::processEvents();
    EXPECT_NE(printing.grab().toImage(), before);
    printing.close();
    ++steps;
  });
  choose("opfile", 8);
  EXPECT_EQ(steps, 2);
}

// It presses the button that has the keyboard before the one that confirms.
TEST_F(Accessible, EnterPressesTheButtonInHand) {
  const auto thickness = bas.def.spessorelineadef;
  bool left = false;
  QTimer::singleShot(0, [&] {
    QWidget& lines = *QApplication::activeModalWidget();
    press(*lines.findChild<QLineEdit*>(), Qt::Key_9, "9");
    QAbstractButton& leave = button(lines, "Annulla");
    leave.setFocus();
    press(leave, Qt::Key_Return, "\r");
    left = !lines.isVisible();
    lines.close();
  });
  choose("mnutipolinea");
  EXPECT_TRUE(left);
  EXPECT_EQ(bas.def.spessorelineadef, thickness);
}

// The keyboard that comes to a list chooses nothing in it.
TEST_F(Accessible, FillsThatDifferStayUntilOneIsChosen) {
  for (const std::int32_t fill : {7, 3}) {
    bas.def.campituradef = fill;
    choose("opdis", 7);
    click(2 + fill, 2);
    click(4 + fill, 5);
  }
  bool seen = false;
  QTimer::singleShot(0, [&] {
    QWidget& surfaces = *QApplication::activeModalWidget();
    QApplication::processEvents();
    auto* fills = surfaces.findChild<QListView*>();
    fills->setFocus();
    EXPECT_TRUE(fills->hasFocus());
    EXPECT_EQ(bas.TipoSuperficie.List2.ListIndex, -1);
    EXPECT_EQ(bas.TipoSuperficie.Label9.Caption.get(), "Vari");
    press(*fills, Qt::Key_Down, {});
    EXPECT_EQ(bas.TipoSuperficie.List2.ListIndex, 0);
    surfaces.close();
    seen = true;
  });
  choose("modifica", 9);
  click(0, 0);
  click(45, 19);
  right_click();
  EXPECT_TRUE(seen);
}

TEST_F(Accessible, ArrowsChooseAmongOptions) {
  bool seen = false;
  QTimer::singleShot(0, [&] {
    QWidget& settings = *QApplication::activeModalWidget();
    const bool grid = bas.impost.Option1.Value;
    const auto options = settings.findChildren<QRadioButton*>();
    const auto chosen = std::find_if(options.begin(), options.end(), [](auto* o) { return o->isChecked(); });
    QApplication::processEvents();
    (*chosen)->setFocus();
    EXPECT_TRUE((*chosen)->hasFocus());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left}) {
      if (bas.impost.Option1.Value == grid) press(**chosen, key, {});
    }
    EXPECT_NE(bas.impost.Option1.Value, grid);
    EXPECT_NE(bas.impost.Option1.Value, bas.impost.Option2.Value);
    settings.close();
    seen = true;
  });
  choose("aiutdis", 1);
  EXPECT_TRUE(seen);
}

TEST_F(Accessible, ZoomAndProperties) {
  choose("opdis", 1);
  click(2, 2);
  click(8, 5);
  right_click();
  choose("opdis", 5);
  click(10, 2);
  click(14, 6);
  click(18, 2);
  right_click();
  choose("opdis", 3);
  click(26, 8);
  click(20, 8);
  click(23, 5);
  choose("opdis", 6);
  click(30, 2);
  click(36, 2);
  click(33, 7);
  right_click();
  choose("opdis", 7);
  click(2, 12);
  click(8, 16);
  look(1, [&] { choose("selezoom", 4); });

  Cerchio circle;
  circle.Xcentro = 14;
  circle.Ycentro = 14;
  circle.raggio = 2;
  doc().dis.collCerchi.aggiungi(circle);
  testo text;
  text.stringa_testo = "a";
  text.dimens_testo = 1;
  text.pos_testox = 22;
  text.pos_testoy = 14;
  doc().dis.collTesti.aggiungi(text);

  // Surface, line, rectangle, text, circle, arc, polyline: each in its dialog, the first with one of its vertices.
  choose("modifica", 9);
  click(0, 0);
  click(45, 19);
  look(
      9, [&] { right_click(); },
      [&](QWidget& window) {
        bas.TipoSuperficie.vertici.List1(0).ListIndex = 1;
        button(window, "Modifica").click();
      });
}

}  // namespace
}  // namespace trelvo
