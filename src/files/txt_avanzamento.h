// How far the reading of a text file has come, as its progress bar shows it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include "platform/runtime_error.h"

namespace trelvo {

class avanzamento {
 public:
  // The count starts at a fifth of the file's length, in bytes; a length of 0 raises error 11. `mostra` is given the
  // part that is read, at the start, each time another hundredth of the whole is passed, and at the end.
  avanzamento(std::uint64_t lunghezza, std::function<void(double parte)> mostra)
      : intero_(quinti * lunghezza), letti_(lunghezza), mostra_(std::move(mostra)) {
    if (lunghezza == 0) throw RuntimeError(error_division);
    avanti();
  }

  // A line of so many characters.
  void letta(std::size_t caratteri) {
    letti_ += quinti * caratteri;
    if (letti_ >= soglia_) avanti();
  }
  void fine() { mostra_(parte()); }

 private:
  // In fifths of a byte.
  static constexpr std::uint64_t quinti = 5;
  static constexpr std::uint64_t passi = 100;

  double parte() const { return static_cast<double>(std::min(letti_, intero_)) / static_cast<double>(intero_); }
  void avanti() {
    letti_ = std::min(letti_, intero_);
    const std::uint64_t prossimo = letti_ * passi / intero_ + 1;
    soglia_ = prossimo > passi ? UINT64_MAX : (prossimo * intero_ + passi - 1) / passi;
    mostra_(parte());
  }

  std::uint64_t intero_;
  std::uint64_t letti_;
  std::uint64_t soglia_ = 0;
  std::function<void(double parte)> mostra_;
};

}  // namespace trelvo
