// One command, running, finished or suspended. Its layout in a drawing file is that of an object record.
#pragma once

#include <cstdint>
#include <string>

#include "platform/text.h"

namespace trelvo {

constexpr std::size_t lunghezza_tipo = 40;

struct reccomando {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  double x3 = 0;
  double y3 = 0;
  std::int16_t nvertici = 0;  // in a suspended command: its step

  // The name, without the padding of the fixed field; empty for none.
  const std::string& tipo() const { return tipo_; }
  void tipo(const std::string& nome) { tipo_ = trimmed(text_left(nome, lunghezza_tipo)); }

 private:
  std::string tipo_;
};

}  // namespace trelvo
