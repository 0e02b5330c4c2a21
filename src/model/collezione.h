// An ordered collection of objects in contiguous chunks: an object never moves, and nothing is ever removed.
#pragma once

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/runtime_error.h"

namespace trelvo {

template <class T>
class collezione {
 public:
  static constexpr std::size_t per_blocco = 1024;

  T& aggiungi(T oggetto) {
    if (blocchi_.empty() || blocchi_.back().size() == per_blocco) {
      blocchi_.emplace_back();
      blocchi_.back().reserve(per_blocco);
    }
    ++numero_;
    return blocchi_.back().emplace_back(std::move(oggetto));
  }

  std::size_t numero() const { return numero_; }

  // Positions count from 1. Error 9 outside.
  T& operator()(std::size_t posizione) { return const_cast<T&>(std::as_const(*this)(posizione)); }
  const T& operator()(std::size_t posizione) const {
    if (posizione < 1 || posizione > numero_) throw RuntimeError(error_bad_index);
    return blocchi_[(posizione - 1) / per_blocco][(posizione - 1) % per_blocco];
  }

  template <class Blocchi, class Oggetto>
  class iteratore {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = Oggetto*;
    using reference = Oggetto&;

    iteratore() = default;
    iteratore(Blocchi* blocchi, std::size_t blocco) : blocchi_(blocchi), blocco_(blocco) { apri(); }
    Oggetto& operator*() const { return *oggetto_; }
    Oggetto* operator->() const { return oggetto_; }
    iteratore& operator++() {
      if (++oggetto_ == fine_) {
        ++blocco_;
        apri();
      }
      return *this;
    }
    iteratore operator++(int) {
      iteratore prima = *this;
      ++*this;
      return prima;
    }
    bool operator==(const iteratore& altro) const { return oggetto_ == altro.oggetto_; }

   private:
    void apri() {
      if (blocco_ < blocchi_->size()) {
        oggetto_ = (*blocchi_)[blocco_].data();
        fine_ = oggetto_ + (*blocchi_)[blocco_].size();
      } else {
        oggetto_ = fine_ = nullptr;
      }
    }
    Blocchi* blocchi_ = nullptr;
    std::size_t blocco_ = 0;
    Oggetto* oggetto_ = nullptr;
    Oggetto* fine_ = nullptr;
  };

  // A walk ends at the objects that were there when it reached the last chunk's end: add none during a walk.
  auto begin() { return iteratore<std::vector<std::vector<T>>, T>(&blocchi_, 0); }
  auto end() { return iteratore<std::vector<std::vector<T>>, T>(&blocchi_, blocchi_.size()); }
  auto begin() const { return iteratore<const std::vector<std::vector<T>>, const T>(&blocchi_, 0); }
  auto end() const { return iteratore<const std::vector<std::vector<T>>, const T>(&blocchi_, blocchi_.size()); }

 private:
  std::vector<std::vector<T>> blocchi_;
  std::size_t numero_ = 0;
};

}  // namespace trelvo
