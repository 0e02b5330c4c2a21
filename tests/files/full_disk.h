// A disk that fills up, for the tests of what is written.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace trelvo {

// While it lives, no file can grow beyond this many bytes.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = size;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_{};
};

}  // namespace trelvo
