// Numbers of a text drawing, by the user's regional settings.
#pragma once

#include <string_view>

#include "platform/numbers.h"

namespace trelvo {

class numeritxt {
 public:
  explicit numeritxt(RegionalFormat formato);

  // What regional_number gives for the text of these bytes of the code page, with its errors 6 and 13; plain numbers
  // are read without it.
  double operator()(std::string_view byte) const;

 private:
  bool semplice(std::string_view byte, double& valore) const;

  RegionalFormat formato_;
  char decimale_;  // 0 if the separator is none of ASCII
};

}  // namespace trelvo
