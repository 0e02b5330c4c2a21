// A program without a screen for the benchmarks, and a folder for their files that goes with the process.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "app/app.h"
#include "support/desktop_finto.h"

namespace trelvo {

// 1200 by 800 pixels.
inline constexpr Desktop::ClientSize finestra_bench{18000, 12000};

struct programma {
  FakeDesktop desktop;
  trelvobas bas;
  explicit programma(const std::string& cartella) : bas(desktop, cartella) {
    desktop.client = finestra_bench;
    prepara(bas);
    Main(bas, "");
    nuovodisegno(bas);
  }
  distipo& doc() { return *bas.attivo(); }
};

inline std::string cartella_bench() {
  static const std::string cartella = [] {
    const auto nome = std::filesystem::temp_directory_path() / ("trelvo_bench_" + std::to_string(getpid()));
    std::filesystem::create_directories(nome);
    std::atexit([] {
      std::filesystem::remove_all(std::filesystem::temp_directory_path() /
                                  ("trelvo_bench_" + std::to_string(getpid())));
    });
    return nome.string();
  }();
  return cartella;
}

}  // namespace trelvo
