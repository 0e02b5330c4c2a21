#include "windows/printer_qt.h"

#include <QPrintDialog>
#include <QPrinterInfo>

#include "platform/qt/print_job_qt.h"
#include "platform/runtime_error.h"
#include "windows/binding.h"
#include "windows/file_dialogs.h"

namespace trelvo {

namespace {

constexpr double file_dots = 600;
constexpr double millimetres_per_inch = 25.4;

}  // namespace

PrinterQt::PrinterQt(std::function<QWidget*()> parent, std::function<std::string()> title)
    : parent_(std::move(parent)), title_(std::move(title)) {
  if (QPrinterInfo::availablePrinters().isEmpty()) printer_.setOutputFormat(QPrinter::PdfFormat);
}

std::string PrinterQt::description() const {
  if (!to_file()) return "Stampante: " + printer_.printerName().toStdString();
  if (QPrinterInfo::availablePrinters().isEmpty()) return "Nessuna stampante installata: si stampa su file PDF";
  return "Stampa su file PDF";
}

double PrinterQt::dots_per_inch() const { return to_file() ? file_dots : printer_.resolution(); }

bool PrinterQt::choose() {
  QPrintDialog dialog(&printer_, parent_());
  dialog.setWindowTitle("Imposta Stampante");
  return dialog.exec() == QDialog::Accepted;
}

// A file takes the whole sheet, a printer what it can reach.
Paper PrinterQt::paper() const {
  const QPageLayout layout = printer_.pageLayout();
  const QRectF sheet = layout.fullRect(QPageLayout::Millimeter);
  const QRectF area = to_file() ? sheet : layout.paintRect(QPageLayout::Millimeter);
  if (area.isEmpty()) throw RuntimeError(error_printer);
  return {area.width(), area.height(), sheet.width(), sheet.height()};
}

std::unique_ptr<PrintJob> PrinterQt::make_job() { return to_file() ? file_job() : printer_job(); }

std::unique_ptr<PrintJob> PrinterQt::file_job() {
  // Asked each time, or the sheet printed before would be lost.
  FileTypes types;
  QFileDialog box(parent_(), "Stampa su file PDF", QString(), "Documento PDF (*.pdf)");
  box.setAcceptMode(QFileDialog::AcceptSave);
  dress_file_dialog(box, types);
  box.setDefaultSuffix("pdf");
  // Beside the drawing, by its name.
  const QFileInfo drawing(qt(title_()));
  if (drawing.isAbsolute()) box.setDirectory(drawing.absolutePath());
  box.selectFile(drawing.completeBaseName() + ".pdf");
  if (box.exec() != QDialog::Accepted) return nullptr;
  const QString name = box.selectedFiles().first();
  return pdf_job(paper(), file_dots, name.toStdString(), title_());
}

std::unique_ptr<PrintJob> PrinterQt::printer_job() {
  if (QPrinterInfo::printerInfo(printer_.printerName()).isNull()) throw RuntimeError(error_printer);
  auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
  device->setPrinterName(printer_.printerName());
  device->setPageLayout(printer_.pageLayout());
  device->setResolution(printer_.resolution());
  device->setCopyCount(printer_.copyCount());
  device->setColorMode(printer_.colorMode());
  device->setPaperSource(printer_.paperSource());
  device->setDocName(qt(title_()));
  device->setFullPage(true);
  const QRectF area = printer_.pageLayout().paintRect(QPageLayout::Millimeter);
  const double dots = dots_per_inch() / millimetres_per_inch;
  return std::make_unique<PrintJobQt>(std::move(device), dots_per_inch(), area.left() * dots, area.top() * dots);
}

}  // namespace trelvo
