// Files for the tests: a folder of their own, and bytes laid out by hand.
#pragma once

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace trelvo {

class TestFolder {
 public:
  TestFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "trelvo_XXXXXX").string();
    name_ = ::mkdtemp(pattern.data());
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder() { std::filesystem::remove_all(name_); }

  std::string operator/(const std::string& file) const { return name_ + "/" + file; }
  const std::string& name() const { return name_; }

 private:
  std::string name_;
};

inline void write_bytes(const std::string& name, const std::string& byte) {
  std::ofstream(name, std::ios::binary | std::ios::trunc) << byte;
}

inline std::string read_bytes(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Bytes at a place, on a machine that is little-endian as the files are.
template <class Number>
void put(std::string& byte, std::size_t place, Number value) {
  std::memcpy(byte.data() + place, &value, sizeof value);
}
inline void put_text(std::string& byte, std::size_t place, std::string_view value) {
  byte.replace(place, value.size(), value);
}

// One object record.
struct TestRecord {
  std::string byte = std::string(40, ' ') + std::string(68, '\0') + std::string(132, ' ') + std::string(2, '\0');

  TestRecord(std::string_view tipo, int nvertici) {
    put_text(byte, 0, tipo);
    put(byte, 240, static_cast<std::int16_t>(nvertici));
  }
  TestRecord& p1(double x, double y) { return pair(40, x, y); }
  TestRecord& p2(double x, double y) { return pair(56, x, y); }
  TestRecord& p3(double x, double y) { return pair(72, x, y); }
  TestRecord& look(int colore1, int colore2, int tratto, int riemp, float spessore) {
    put(byte, 88, colore1);
    put(byte, 92, colore2);
    put(byte, 96, tratto);
    put(byte, 100, riemp);
    put(byte, 104, spessore);
    return *this;
  }
  TestRecord& text(std::string_view face, std::string_view value) {
    put_text(byte, 108, face);
    put_text(byte, 140, value);
    return *this;
  }

 private:
  TestRecord& pair(std::size_t place, double x, double y) {
    put(byte, place, x);
    put(byte, place + 8, y);
    return *this;
  }
};

inline const std::string dis_on("\x08\0\x02\0ON", 6);
inline const std::string dis_off("\x08\0\x03\0OFF", 7);

// A header: view (1,2) to (5,5), normal window, colours 15 and 5, step on at 0.5, grid off at 2.
inline std::string test_header() {
  std::string byte(11 * 242, '\0');
  put(byte, 0, 1.0F);
  put(byte, 242, 2.0F);
  put(byte, 484, 4.0F);
  put(byte, 726, 3.0F);
  put_text(byte, 968, std::string_view("\x02\0\0\0", 4));
  put_text(byte, 1210, std::string_view("\x02\0\x0F\0", 4));
  put_text(byte, 1452, std::string_view("\x02\0\x05\0", 4));
  put_text(byte, 1694, dis_on);
  put(byte, 1936, 0.5F);
  put_text(byte, 2178, dis_off);
  put(byte, 2420, 2.0F);
  return byte;
}

}  // namespace trelvo
