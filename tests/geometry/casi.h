// Random and degenerate values for the tests that compare fast routines with their plain steps.
#pragma once

#include <limits>
#include <random>

namespace trelvo {

class Casi {
 public:
  explicit Casi(unsigned seme) : random_(seme) {}

  // A scale for one case: small drawings, big ones, and ones far from the origin.
  void nuovo() {
    constexpr double scale[] = {1, 10, 1000, 1e6, 1e-3, 1e-150, 1e150};
    constexpr double origini[] = {0, 0, 100, 1e6, 1e9};
    scala_ = scale[intero(7) < 4 ? intero(4) : intero(7)];
    ox_ = scala_ * origini[intero(5)] * (intero(2) == 0 ? 1 : -1);
    oy_ = scala_ * origini[intero(5)];
    strani_ = intero(4) == 0;
  }

  // Half of the values lie on a coarse grid, so that points coincide and lines run level.
  double x() { return valore(ox_); }
  double y() { return valore(oy_); }
  double lunghezza() { return intero(8) == 0 ? 0 : scala_ * reale() * (intero(4) == 0 ? 10 : 1); }
  int intero(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  double reale() { return std::uniform_real_distribution<double>(0, 1)(random_); }

 private:
  double valore(double origine) {
    if (strani_ && intero(12) == 0) {
      constexpr double inf = std::numeric_limits<double>::infinity();
      constexpr double strani[] = {inf, -inf, std::numeric_limits<double>::quiet_NaN(), 1e308, -1e308, 5e-324};
      return strani[intero(6)];
    }
    const double v = intero(2) == 0 ? intero(9) / 2.0 - 2 : reale() * 4 - 2;
    return origine + scala_ * v;
  }

  std::mt19937 random_;
  double scala_ = 1;
  double ox_ = 0;
  double oy_ = 0;
  bool strani_ = false;
};

}  // namespace trelvo
