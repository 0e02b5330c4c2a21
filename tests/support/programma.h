// A whole program without a screen, in a folder of its own.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

#include "document/trelvobas.h"
#include "support/desktop_finto.h"

namespace trelvo {

// A document alone, on a surface of 15000 by 9000 logical units: 300 of them a drawing unit, 50 by 30 in view.
struct LoneDocument {
  FakeDesktop desktop;
  trelvobas bas{desktop, "/nowhere"};
  distipo doc{bas, desktop.fonts(), 1};
  int saved_settings = 0;

  LoneDocument() {
    bas.salvafileini_dis = [this](distipo&) { ++saved_settings; };
    doc.surface.resize(15000, 9000);
    doc.vista.rapscala = 300;
  }
};

// A folder that goes with its object.
class ScratchFolder {
 public:
  ScratchFolder() {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("trelvo_test_" + std::to_string(getpid()) + "_" + std::to_string(++count));
    std::filesystem::create_directories(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  std::string path() const { return path_.string(); }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace trelvo
