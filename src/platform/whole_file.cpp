// The standard streams neither tell why they fail nor flush to the disk, hence the system's own calls.
#include "platform/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "platform/runtime_error.h"

namespace trelvo {

namespace {

namespace fs = std::filesystem;

int error_number(int code) {
  switch (code) {
    case ENOENT:
      return error_file_not_found;
    case ENOTDIR:
      return error_path_not_found;
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
      return error_permission;
    case EISDIR:
    case EROFS:
    case ELOOP:
      return error_path_access;
    case ENAMETOOLONG:
    case EILSEQ:
    case EINVAL:
      return error_file_name;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return error_disk_full;
    default:
      return error_device_io;
  }
}

template <class Call>
auto insist(Call&& call) {
  for (;;) {
    const auto result = call();
    if (result >= 0) return result;
    if (errno != EINTR) throw RuntimeError(error_number(errno));
  }
}

class OpenFile {
 public:
  OpenFile(const std::string& path, int flags, mode_t rights = 0) {
    if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(error_file_name);
    // Without waiting for the other end of a pipe.
    file_ = insist([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, rights); });
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (file_ >= 0) ::close(file_);
  }

  struct stat state() const {
    struct stat found {};
    insist([&] { return ::fstat(file_, &found); });
    return found;
  }
  std::string read(std::size_t most) const {
    constexpr std::size_t block = 1U << 16;
    std::string bytes;
    for (;;) {
      const std::size_t before = bytes.size();
      bytes.resize(before + block);
      const auto count = insist([&] { return ::read(file_, bytes.data() + before, block); });
      bytes.resize(before + static_cast<std::size_t>(count));
      if (count == 0) return bytes;
      if (bytes.size() > most) throw RuntimeError(error_no_memory);
    }
  }
  void write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const auto count = insist([&] { return ::write(file_, bytes.data(), bytes.size()); });
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  // Nobody reads it until it is shown, with `rights` or those it has now. Where rights cannot be chosen it stays as it
  // is.
  void hide(std::optional<mode_t> rights) {
    const mode_t own = state().st_mode;
    if (::fchmod(file_, S_IWUSR) == 0) hidden_ = rights.value_or(own) & 0777U;
  }
  void show() const {
    if (hidden_) insist([&] { return ::fchmod(file_, *hidden_); });
  }
  void to_disk() const {
    insist([&] { return ::fsync(file_); });
  }

 private:
  int file_ = -1;
  std::optional<mode_t> hidden_;
};

// Goes with its object unless it took another name.
struct Beside {
  std::string name;
  ~Beside() {
    std::error_code ignored;
    if (!name.empty()) fs::remove(name, ignored);
  }
};

// A link stays a link, also one that leads to nothing yet.
std::string real_name(const std::string& path) {
  constexpr int most_links = 40;
  std::error_code error;
  fs::path real = path;
  for (int i = 0; i < most_links && fs::is_symlink(real, error); ++i) {
    const fs::path next = fs::read_symlink(real, error);
    if (error) return path;
    real = next.is_absolute() ? next : real.parent_path() / next;
  }
  return real.string();
}

}  // namespace

std::string read_whole_file(const std::string& path, std::size_t most) {
  const OpenFile file(path, O_RDONLY);
  const mode_t mode = file.state().st_mode;
  if (S_ISDIR(mode)) throw RuntimeError(error_path_access);
  if (!S_ISREG(mode)) throw RuntimeError(error_device_io);
  return file.read(most);
}

std::string name_beside(const std::string& path, std::size_t marks) {
  constexpr std::size_t longest_name = 255;
  const std::size_t folder = path.rfind('/') + 1;  // 0 for none
  std::size_t length = path.size();
  if (length - folder + marks > longest_name) {
    length = folder + longest_name - std::min(marks, longest_name);
    // No letter is cut in two.
    while (length > folder && (static_cast<unsigned char>(path[length]) & 0xC0U) == 0x80) --length;
  }
  return path.substr(0, length) + std::string(marks, '~');
}

void replace_whole_file(const std::string& path, std::string_view bytes) {
  const std::string name = real_name(path);
  std::error_code ignored;
  const fs::file_status old = fs::status(name, ignored);
  if (fs::exists(old)) {
    // A file that may not be written is not to be replaced either.
    const OpenFile proof(name, O_WRONLY);
    if (!fs::is_regular_file(old)) {
      proof.write(bytes);
      return;
    }
  }
  Beside beside;
  std::size_t marks = 0;
  do {
    beside.name = name_beside(name, ++marks);
  } while (fs::exists(fs::symlink_status(beside.name, ignored)));
  OpenFile file(beside.name, O_WRONLY | O_CREAT | O_EXCL, 0666);
  std::optional<mode_t> rights;
  if (fs::exists(old)) rights = static_cast<mode_t>(old.permissions());
  file.hide(rights);
  file.write(bytes);
  file.show();
  file.to_disk();
  insist([&] { return std::rename(beside.name.c_str(), name.c_str()); });
  beside.name.clear();
}

}  // namespace trelvo
