// Windows want an application, but no display.
#include <gtest/gtest.h>

#include <QApplication>
#include <iostream>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  // What the platform without a display cannot do is of no interest.
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*place*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << "\n";
  });
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
