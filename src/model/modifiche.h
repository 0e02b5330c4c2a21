// Which objects of a collection may have changed since a reader last looked: a bit an object.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace trelvo {

class modifiche {
 public:
  // Indices count from 0; one is new until it is taken.
  void segna(std::size_t indice) {
    const std::size_t parola = indice / 64;
    if (parola >= parole_.size()) parole_.resize(parola + 1);
    parole_[parola] |= std::uint64_t{1} << (indice % 64);
    qualcuna_ = true;
  }
  bool qualcuna() const { return qualcuna_; }
  std::size_t quante() const {
    std::size_t n = 0;
    for (const std::uint64_t parola : parole_) n += static_cast<std::size_t>(std::popcount(parola));
    return n;
  }

  // Calls azione(indice) in order.
  template <class Azione>
  void per_ognuna(Azione&& azione) const {
    for (std::size_t parola = 0; parola < parole_.size(); ++parola) {
      for (std::uint64_t bit = parole_[parola]; bit != 0; bit &= bit - 1) {
        azione(parola * 64 + static_cast<std::size_t>(std::countr_zero(bit)));
      }
    }
  }
  void dimentica() {
    if (qualcuna_) std::fill(parole_.begin(), parole_.end(), 0);
    qualcuna_ = false;
  }

 private:
  std::vector<std::uint64_t> parole_;
  bool qualcuna_ = false;
};

}  // namespace trelvo
