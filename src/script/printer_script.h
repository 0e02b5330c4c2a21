// The printer of a script: 600 dots an inch, on the paper that the script lays in. A sheet goes to the PDF file that
// was named ahead, or nowhere.
#pragma once

#include "platform/printer.h"

namespace trelvo {

class DesktopScript;

class PrinterScript : public Printer {
 public:
  PrinterScript(DesktopScript& desktop, PdfMaker make_pdf) : desktop_(desktop), make_pdf_(std::move(make_pdf)) {}

  std::string description() const override { return "PDF"; }
  double dots_per_inch() const override { return 600; }

 protected:
  Paper paper() const override;
  std::unique_ptr<PrintJob> make_job() override;

 private:
  DesktopScript& desktop_;
  PdfMaker make_pdf_;
};

}  // namespace trelvo
