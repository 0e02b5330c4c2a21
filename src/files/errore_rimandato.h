// Keeps the first error of several steps, so that all of them run before it is raised.
#pragma once

#include <new>
#include <optional>

#include "platform/runtime_error.h"

namespace trelvo {

class errorerimandato {
 public:
  // False if the step failed.
  template <class Passo>
  bool prova(Passo&& passo) {
    try {
      passo();
      return true;
    } catch (const RuntimeError& errore) {
      annota(errore);
    } catch (const std::bad_alloc&) {
      annota(RuntimeError(error_no_memory));
    }
    return false;
  }
  void annota(const RuntimeError& errore) {
    if (!primo_) primo_ = errore;
  }
  bool presente() const { return primo_.has_value(); }
  void rilancia() const {
    if (primo_) throw *primo_;
  }

 private:
  std::optional<RuntimeError> primo_;
};

}  // namespace trelvo
