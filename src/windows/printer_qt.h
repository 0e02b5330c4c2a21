// The desktop's printer, as the user chose it for this run. Without one, a sheet goes to a PDF file.
#pragma once

#include <QPrinter>
#include <functional>

#include "platform/printer.h"

class QWidget;

namespace trelvo {

class PrinterQt : public Printer {
 public:
  PrinterQt(std::function<QWidget*()> parent, std::function<std::string()> title);

  std::string description() const override;
  double dots_per_inch() const override;
  // The system's print dialog; false if cancelled.
  bool choose();

 protected:
  Paper paper() const override;
  std::unique_ptr<PrintJob> make_job() override;

 private:
  bool to_file() const { return printer_.outputFormat() == QPrinter::PdfFormat; }
  std::unique_ptr<PrintJob> file_job();
  std::unique_ptr<PrintJob> printer_job();

  std::function<QWidget*()> parent_;
  std::function<std::string()> title_;
  QPrinter printer_{QPrinter::HighResolution};
};

}  // namespace trelvo
