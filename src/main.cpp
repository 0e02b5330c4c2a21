// Reads the command line and runs the program, in windows or by a script.

#include <QApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <exception>
#include <iostream>

#include "app/app.h"
#include "platform/qt/command_line.h"
#include "platform/qt/font_service_qt.h"
#include "platform/qt/print_job_qt.h"
#include "platform/qt/program_folder.h"
#include "script/script.h"
#include "windows/desktop_qt.h"
#include "windows/plain_buttons.h"
#include "windows/report_window.h"
#include "windows/safety_copies.h"

namespace {

constexpr int status_bad_command_line = 2;

int run_script(int argc, char** argv, const trelvo::CommandLine& line) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Standard error is the script's: what Qt only remarks on stays out of it.
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*place*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << "\n";
  });
  const QGuiApplication application(argc, argv);
  trelvo::FontServiceQt fonts;
  const auto sheet = [](const trelvo::Paper& paper, double dots, const std::string& file) {
    return trelvo::pdf_job(paper, dots, file, "Trelvo");
  };
  return trelvo::esegui_script(line.script, trelvo::program_folder(line.folder), fonts, sheet);
}

int run_frame(trelvo::DesktopQt& desktop, trelvo::trelvobas& bas, const std::string& folder, const std::string& file) {
  trelvo::SafetyCopies copies(desktop, folder);
  desktop.run([&] { trelvo::Main(bas, file); });
  desktop.run([&] { copies.offer_lost(); });
  const int status = QApplication::exec();
  desktop.hide_frame();
  return status;
}

// The report editor alone: the program ends with it.
int run_report(trelvo::DesktopQt& desktop, const std::string& folder, const std::string& file) {
  trelvo::videoscritt report(desktop, folder);
  trelvo::ReportWindow window(desktop, report);
  desktop.set_main_window(&window);
  report.Unloaded = [] { QApplication::quit(); };
  desktop.run([&] { trelvo::apri_relazione(report, file); });
  return QApplication::exec();
}

int run_windows(int argc, char** argv, const trelvo::CommandLine& line) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName("Trelvo");
  QApplication::setDesktopFileName("trelvo");
  QApplication::setStyle(new trelvo::PlainButtons);
  // The face speaks Italian, Qt's own dialogs included where their texts are installed.
  QTranslator texts;
  if (texts.load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&texts);
  }
  trelvo::DesktopQt desktop;
  const std::string folder = trelvo::program_folder(line.folder);
  trelvo::trelvobas bas(desktop, folder);
  desktop.attach(bas);
  trelvo::prepara(bas);
  return line.report ? run_report(desktop, folder, line.file) : run_frame(desktop, bas, folder, line.file);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const trelvo::CommandLine line = trelvo::read_command_line({argv + 1, argv + argc});
    if (line.help) {
      std::cout << trelvo::usage();
      return 0;
    }
    if (line.version) {
      std::cout << "Trelvo " TRELVO_VERSION "\n";
      return 0;
    }
    return line.script.empty() ? run_windows(argc, argv, line) : run_script(argc, argv, line);
  } catch (const trelvo::CommandLineError& error) {
    std::cerr << error.what() << "\n";
    return status_bad_command_line;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
