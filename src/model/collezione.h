// An ordered collection of objects in contiguous chunks: an object never moves, and nothing is ever removed.
//
// Beside the objects it keeps what is derived from them, so that questions about a few need no walk over all: the
// places of the objects, and the list of those in use. Both follow by themselves. Whoever takes an object for writing,
// by its position or in a walk, marks it, and marked objects are looked at again at the next question; reading through
// a const collection marks nothing. So a reference for writing is good until the next question, and a walk that writes
// to few objects had better find them through a const collection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/in_uso.h"
#include "model/indice.h"
#include "model/modifiche.h"
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
    T& aggiunto = blocchi_.back().emplace_back(std::move(oggetto));
    segna(numero_++);
    return aggiunto;
  }

  std::size_t numero() const { return numero_; }
  // How often an object was added or taken for writing.
  std::uint64_t scritture() const { return scritture_; }

  // Positions count from 1. Error 9 outside.
  T& operator()(std::size_t posizione) {
    const T& oggetto = std::as_const(*this)(posizione);
    segna(posizione - 1);
    return const_cast<T&>(oggetto);
  }
  const T& operator()(std::size_t posizione) const {
    if (posizione < 1 || posizione > numero_) throw RuntimeError(error_bad_index);
    return blocchi_[(posizione - 1) / per_blocco][(posizione - 1) % per_blocco];
  }

  // Calls azione(posizione, oggetto) for the positions until it gives true. Their objects lie here and there: memory is
  // asked for them ahead of their use, or each would be waited for.
  template <class Azione>
  bool per_posizioni(const std::vector<posizione_t>& posizioni, Azione&& azione) const {
    constexpr std::size_t anticipo = 12;
    for (std::size_t i = 0; i < posizioni.size(); ++i) {
      if (i + anticipo < posizioni.size()) prepara((*this)(posizioni[i + anticipo]));
      if (azione(posizioni[i], (*this)(posizioni[i]))) return true;
    }
    return false;
  }

  template <class Collezione>
  class iteratore {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using reference = std::conditional_t<std::is_const_v<Collezione>, const T&, T&>;
    using pointer = std::remove_reference_t<reference>*;

    iteratore() = default;
    iteratore(Collezione* collezione, std::size_t blocco) : collezione_(collezione), blocco_(blocco) { apri(); }
    reference operator*() const {
      if constexpr (!std::is_const_v<Collezione>) {
        collezione_->segna(blocco_ * per_blocco + static_cast<std::size_t>(oggetto_ - inizio_));
      }
      return *oggetto_;
    }
    pointer operator->() const { return &**this; }
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
      if (blocco_ < collezione_->blocchi_.size()) {
        inizio_ = oggetto_ = collezione_->blocchi_[blocco_].data();
        fine_ = oggetto_ + collezione_->blocchi_[blocco_].size();
      } else {
        inizio_ = oggetto_ = fine_ = nullptr;
      }
    }
    Collezione* collezione_ = nullptr;
    std::size_t blocco_ = 0;
    pointer inizio_ = nullptr;
    pointer oggetto_ = nullptr;
    pointer fine_ = nullptr;
  };

  // A walk ends at the objects that were there when it reached the last chunk's end: add none during a walk.
  auto begin() { return iteratore<collezione>(this, 0); }
  auto end() { return iteratore<collezione>(this, blocchi_.size()); }
  auto begin() const { return iteratore<const collezione>(this, 0); }
  auto end() const { return iteratore<const collezione>(this, blocchi_.size()); }

  // Positions of the objects in use, in order.
  std::vector<posizione_t> in_uso() const {
    if (da_usare_.qualcuna()) aggiorna_uso();
    return usati_;
  }

  // The places of the objects. Whoever asks brings them up to date first: azione(posizione, oggetto) for each object
  // that may have changed since the last time.
  indice& luoghi() const { return luoghi_; }
  std::size_t da_collocare() const { return da_collocare_.qualcuna() ? da_collocare_.quante() : 0; }
  template <class Azione>
  void colloca(Azione&& azione) const {
    da_collocare_.per_ognuna([&](std::size_t i) {
      const auto posizione = static_cast<posizione_t>(i + 1);
      azione(posizione, (*this)(posizione));
    });
    da_collocare_.dimentica();
  }

 private:
  void segna(std::size_t indice) {
    ++scritture_;
    da_collocare_.segna(indice);
    da_usare_.segna(indice);
  }

  static void prepara(const T& oggetto) {
    constexpr std::size_t linea_di_memoria = 64;
    const auto* byte = reinterpret_cast<const char*>(&oggetto);
    for (std::size_t i = 0; i < sizeof(T); i += linea_di_memoria) __builtin_prefetch(byte + i);
  }

  // Those that were marked are judged anew, the others are as they were.
  void aggiorna_uso() const {
    std::vector<posizione_t> nuovi;
    auto vecchio = usati_.begin();
    const auto riporta_fino_a = [&](posizione_t limite) {
      for (; vecchio != usati_.end() && *vecchio < limite; ++vecchio) nuovi.push_back(*vecchio);
    };
    da_usare_.per_ognuna([&](std::size_t i) {
      const auto posizione = static_cast<posizione_t>(i + 1);
      riporta_fino_a(posizione);
      if (vecchio != usati_.end() && *vecchio == posizione) ++vecchio;
      if (trelvo::in_uso((*this)(posizione))) nuovi.push_back(posizione);
    });
    riporta_fino_a(static_cast<posizione_t>(numero_ + 1));
    usati_ = std::move(nuovi);
    da_usare_.dimentica();
  }

  std::vector<std::vector<T>> blocchi_;
  std::size_t numero_ = 0;
  std::uint64_t scritture_ = 0;
  mutable modifiche da_collocare_;
  mutable modifiche da_usare_;
  mutable indice luoghi_;
  mutable std::vector<posizione_t> usati_;
};

}  // namespace trelvo
