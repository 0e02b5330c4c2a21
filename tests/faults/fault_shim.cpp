// Stands between a program and the system: lets one call on the files of a folder go wrong. What and when is told by
// the environment:
//   FAULT_FOLDER  the folder watched
//   FAULT_ARMED   the end of a path: calls count once a file of that name was opened
//   FAULT_CALL    open, read, write, close, fsync, rename, remove, fstat, ftruncate or fchmod
//   FAULT_NTH     which of these calls
//   FAULT_DO      a number: fails with that errno; short: moves half of the bytes; before, after: the process is killed
//                 before or after the call; a number with "+": so do all calls that follow
//   FAULT_MARK    made when it happens
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

template <class Function>
Function real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::string setting(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

enum class What { nothing, error, half, kill };

// The N-th call of one kind, and what becomes of it.
class Fault {
 public:
  // Whether this call, on a watched file, is to go wrong; an error is set in errno.
  What met(const char* call) {
    if (!armed_ || call_ != call) return What::nothing;
    const int number = ++count_;
    if (number != nth_ && !(lasting_ && number > nth_)) return What::nothing;
    mark();
    if (do_ == "short") return What::half;
    if (do_ == "before") kill_now();
    if (do_ == "after") return What::kill;
    errno = std::atoi(do_.c_str());
    return What::error;
  }

  void arm(const char* path) {
    if (!armed_path_.empty() && std::string_view(path).ends_with(armed_path_)) armed_ = true;
  }
  void opened(const char* path, int descriptor) {
    if (descriptor < 0) return;
    arm(path);
    watched_[static_cast<std::size_t>(descriptor) % size] = watches(path);
  }
  void closed(int descriptor) { watched_[static_cast<std::size_t>(descriptor) % size] = false; }
  bool watches(int descriptor) const {
    return descriptor >= 0 && watched_[static_cast<std::size_t>(descriptor) % size];
  }
  bool watches(const char* path) const { return !folder_.empty() && std::string_view(path).starts_with(folder_); }

  [[noreturn]] static void kill_now() {
    kill(getpid(), SIGKILL);
    for (;;) pause();
  }

 private:
  void mark() const {
    const long descriptor = syscall(SYS_openat, AT_FDCWD, mark_.c_str(), O_CREAT | O_WRONLY, 0600);
    if (descriptor >= 0) syscall(SYS_close, descriptor);
  }

  static constexpr std::size_t size = 4096;
  std::string folder_ = setting("FAULT_FOLDER");
  std::string armed_path_ = setting("FAULT_ARMED");
  std::string call_ = setting("FAULT_CALL");
  std::string do_ = setting("FAULT_DO");
  std::string mark_ = setting("FAULT_MARK");
  int nth_ = std::atoi(setting("FAULT_NTH").c_str());
  bool lasting_ = do_.ends_with('+');
  std::atomic<bool> armed_{false};
  std::atomic<int> count_{0};
  std::atomic<bool> watched_[size]{};
};

Fault& fault() {
  static Fault only;
  return only;
}

// A call that either goes wrong or is made, and after which the process may be killed.
template <class Call>
auto made(const char* name, bool watched, Call&& call) {
  const What what = watched ? fault().met(name) : What::nothing;
  if (what == What::error) return static_cast<decltype(call())>(-1);
  const auto result = call();
  if (what == What::kill) Fault::kill_now();
  return result;
}

template <class Move>
ssize_t moved(const char* name, int descriptor, std::size_t count, Move&& move) {
  const What what = fault().watches(descriptor) ? fault().met(name) : What::nothing;
  if (what == What::error) return -1;
  const ssize_t result = move(what == What::half && count > 1 ? count / 2 : count);
  if (what == What::kill) Fault::kill_now();
  return result;
}

mode_t mode_of(int flags, va_list arguments) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

int open_watched(const char* path, int flags, mode_t mode) {
  const int descriptor = made("open", fault().watches(path),
                              [&] { return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode)); });
  fault().opened(path, descriptor);
  return descriptor;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = mode_of(flags, arguments);
  va_end(arguments);
  return open_watched(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = mode_of(flags, arguments);
  va_end(arguments);
  return open_watched(path, flags | O_LARGEFILE, mode);
}

// The streams of the standard library open their files here.
FILE* fopen(const char* path, const char* mode) {
  static const auto call = real<FILE* (*)(const char*, const char*)>("fopen");
  fault().arm(path);
  return call(path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
  static const auto call = real<FILE* (*)(const char*, const char*)>("fopen64");
  fault().arm(path);
  return call(path, mode);
}

ssize_t read(int descriptor, void* data, std::size_t count) {
  static const auto call = real<ssize_t (*)(int, void*, std::size_t)>("read");
  return moved("read", descriptor, count, [&](std::size_t some) { return call(descriptor, data, some); });
}

ssize_t write(int descriptor, const void* data, std::size_t count) {
  static const auto call = real<ssize_t (*)(int, const void*, std::size_t)>("write");
  return moved("write", descriptor, count, [&](std::size_t some) { return call(descriptor, data, some); });
}

// A descriptor is gone whatever its closing says.
int close(int descriptor) {
  static const auto call = real<int (*)(int)>("close");
  const bool watched = fault().watches(descriptor);
  if (descriptor >= 0) fault().closed(descriptor);
  const What what = watched ? fault().met("close") : What::nothing;
  const int error = errno;
  const int result = call(descriptor);
  if (what == What::kill) Fault::kill_now();
  if (what != What::error) return result;
  errno = error;
  return -1;
}

int fsync(int descriptor) {
  static const auto call = real<int (*)(int)>("fsync");
  return made("fsync", fault().watches(descriptor), [&] { return call(descriptor); });
}

int ftruncate(int descriptor, off_t length) noexcept {
  static const auto call = real<int (*)(int, off_t)>("ftruncate");
  return made("ftruncate", fault().watches(descriptor), [&] { return call(descriptor, length); });
}

int fchmod(int descriptor, mode_t mode) noexcept {
  static const auto call = real<int (*)(int, mode_t)>("fchmod");
  return made("fchmod", fault().watches(descriptor), [&] { return call(descriptor, mode); });
}

int fstat(int descriptor, struct stat* state) noexcept {
  static const auto call = real<int (*)(int, struct stat*)>("fstat");
  return made("fstat", fault().watches(descriptor), [&] { return call(descriptor, state); });
}

int rename(const char* from, const char* to) noexcept {
  static const auto call = real<int (*)(const char*, const char*)>("rename");
  return made("rename", fault().watches(from), [&] { return call(from, to); });
}

int remove(const char* path) noexcept {
  static const auto call = real<int (*)(const char*)>("remove");
  return made("remove", fault().watches(path), [&] { return call(path); });
}

int unlink(const char* path) noexcept {
  static const auto call = real<int (*)(const char*)>("unlink");
  return made("remove", fault().watches(path), [&] { return call(path); });
}

}  // extern "C"
