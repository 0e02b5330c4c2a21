// How much memory a benchmark needed at most, beyond what the process held before it.
#pragma once

#include <malloc.h>

#include <fstream>
#include <string>

namespace trelvo {

class picco_memoria {
 public:
  // The system counts the peak from here on.
  // What earlier work left with the allocator is given back first.
  picco_memoria() : prima_(resto()) { std::ofstream("/proc/self/clear_refs") << "5"; }
  double mebibyte() const { return (letto("VmHWM:") - prima_) / 1024; }

 private:
  static double resto() {
    malloc_trim(0);
    return letto("VmRSS:");
  }
  // Of the process, in KiB.
  static double letto(const std::string& voce) {
    std::ifstream stato("/proc/self/status");
    for (std::string parola; stato >> parola;) {
      if (parola != voce) continue;
      double valore = 0;
      stato >> valore;
      return valore;
    }
    return 0;
  }
  double prima_;
};

}  // namespace trelvo
