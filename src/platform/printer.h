// The printer as a surface: one sheet, in millimetres once ScaleMode says so, painted as figures that stay figures.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/surface.h"

namespace trelvo {

// Millimetres. The printable area lies in the middle of the sheet.
struct Paper {
  double width = 210;
  double height = 297;
  double sheet_width = 210;
  double sheet_height = 297;
};

// A sheet while it is drawn, in dots from the corner of its printable area. What is neither finished nor kept goes.
class PrintJob : public DeviceContext {
 public:
  virtual void segment(const Pen& pen, double x1, double y1, double x2, double y2) = 0;
  // The sheet goes out. Error 482, 57, 61, 70 or 75 if it cannot.
  virtual void finish() = 0;
};

class Printer : public Surface {
 public:
  Printer() { ScaleMode = scale_twips; }

  int FillStyle = 0;
  bool FontTransparent = true;

  // The whole sheet, in twips.
  float Width() const;
  float Height() const;
  float TwipsPerPixelX() const;
  float TwipsPerPixelY() const { return TwipsPerPixelX(); }
  // ScaleWidth and ScaleHeight become those of the printable area in that unit. Error 482 without a printer.
  void set_ScaleMode(int mode);

  // What prints, for the user's eyes: a printer's name, or a file's kind.
  virtual std::string description() const = 0;
  // False if the user did not want it after all; the sheet is on then. Error 482 without a printer.
  bool start();
  // Ends the sheet and sends it out.
  void EndDoc();
  // Drops what was started.
  void KillDoc() { job_.reset(); }

  // While a sheet is on.
  DeviceContext& hDC() override { return *job_; }
  double dots_per_inch() const override = 0;

 protected:
  // Error 482 without a printer.
  virtual Paper paper() const = 0;
  // nullptr if the user did not want it after all.
  virtual std::unique_ptr<PrintJob> make_job() = 0;

  void paint_cls() override {}
  void paint_line(double x1, double y1, double x2, double y2, Color color) override;
  void paint_pset(double x, double y, Color color) override;

 private:
  std::unique_ptr<PrintJob> job_;
};

// Makes the job of a sheet that goes to a PDF file, at so many dots an inch.
using PdfMaker = std::function<std::unique_ptr<PrintJob>(const Paper& paper, double dots, const std::string& file)>;

}  // namespace trelvo
