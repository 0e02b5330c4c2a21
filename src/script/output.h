// What a script prints, line by line, kept back until there is enough to write.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace trelvo {

class Output {
 public:
  explicit Output(std::ostream& stream) : stream_(stream) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() { flush(); }

  void line(std::string_view text) {
    kept_ += text;
    kept_ += '\n';
    if (kept_.size() > enough) flush();
  }
  void flush() {
    stream_.write(kept_.data(), static_cast<std::streamsize>(kept_.size()));
    stream_.flush();
    kept_.clear();
  }

 private:
  static constexpr std::size_t enough = 1 << 16;
  std::ostream& stream_;
  std::string kept_;
};

}  // namespace trelvo
