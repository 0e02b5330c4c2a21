// A printer's sheets as files: a line a figure. No window system is needed for them.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/printer.h"

namespace trelvo {

class Sheets {
 public:
  explicit Sheets(FontService& fonts) : fonts_(fonts) {}

  // Errors 52, 75, 76 for a name that cannot be written, and those of a file when the sheet goes out.
  PdfMaker maker();

  // Sheets that are begun and neither finished nor dropped.
  int on() const { return on_; }
  // What the finished ones show, as numbers.
  const std::vector<std::size_t>& finished() const { return finished_; }

 private:
  class Sheet;

  FontService& fonts_;
  int on_ = 0;
  std::vector<std::size_t> finished_;
};

}  // namespace trelvo
