#include "files/ini.h"

#include <gtest/gtest.h>

#include <limits>

#include "test_program.h"

namespace trelvo {
namespace {

constexpr std::size_t slot_size = 128;
constexpr std::size_t at(std::size_t slot) { return (slot - 1) * slot_size; }

std::string tagged(std::int16_t value) {
  std::string bytes("\x02\0\0\0", 4);
  put(bytes, 2, value);
  return bytes;
}
std::string tagged(double value) {
  std::string bytes("\x05\0\0\0\0\0\0\0\0\0", 10);
  put(bytes, 2, value);
  return bytes;
}
template <class Number>
std::string plain(Number value) {
  std::string bytes(sizeof value, '\0');
  put(bytes, 0, value);
  return bytes;
}

std::string default_file() {
  std::string bytes(48 * slot_size, '\0');
  const auto slot = [&](std::size_t n, const std::string& value) { put_text(bytes, at(n), value); };
  slot(1, plain(1.0F));
  slot(2, plain(1.0F));
  slot(3, dis_on);
  slot(4, dis_on);
  slot(5, tagged(std::int16_t{15}));
  slot(6, tagged(std::int16_t{5}));
  slot(7, tagged(std::int16_t{3}));
  slot(11, plain(7));
  for (std::size_t n = 16; n <= 20; ++n) slot(n, tagged(std::int16_t{1}));
  slot(21, tagged(std::int16_t{0}));
  slot(22, dis_off);
  slot(24, std::string("\x05\0Arial", 7));
  slot(25, plain(10));
  slot(32, plain(0xFFFFFF));
  return bytes;
}

// Every setting, changed.
void change_all(distipo& doc) {
  doc.imp = {spento, 0.5F, spento, 2.5F, acceso, 1, {0, true}, {9, true}, {15, false}};
  doc.bas.def = {1, 2, 3, 4, 5, 6, 7, 8};
  doc.barrevis.barra = {0, 0, 1, 0, 1, 0};
  doc.filtro.filtroattivo = 6;
  doc.testi = {"Città", 12, -1, -1, -1, -1, 0x102030, -1, 0x405060};
  for (std::size_t i = 0; i < 16; ++i) doc.bas.spessoristampa[i] = 0.1F * static_cast<float>(i);
}

// What the file of these settings is, as it stands in the document and in the program.
std::string written(TestProgram& p) {
  salvafileini_dis(p.doc);
  return read_bytes(p.bas.fileini);
}

TEST(Ini, MissingFileIsMadeWithTheDefaults) {
  TestProgram p;
  change_all(p.doc);
  leggifileini_dis(p.doc);
  EXPECT_EQ(read_bytes(p.bas.fileini), default_file());
  EXPECT_EQ(written(p), default_file());
}

TEST(Ini, EverySettingInItsSlot) {
  TestProgram p;
  change_all(p.doc);
  const std::string bytes = written(p);
  std::string expected = default_file();
  const auto slot = [&](std::size_t n, const std::string& value) { put_text(expected, at(n), value); };
  slot(1, plain(2.5F));
  slot(2, plain(0.5F));
  slot(3, dis_off);
  slot(4, dis_off);
  slot(5, tagged(0.0));
  slot(6, tagged(9.0));
  slot(7, tagged(std::int16_t{15}));
  const int numbers[] = {1, 3, 2, 4, 5, 6, 7, 8};
  for (std::size_t i = 0; i < 8; ++i) slot(8 + i, plain(numbers[i]));
  for (const std::size_t n : {16, 18, 20}) slot(n, tagged(std::int16_t{0}));
  slot(21, tagged(std::int16_t{6}));
  slot(22, dis_on + std::string(1, '\0'));
  slot(23, plain(std::int16_t{1}));
  slot(24, std::string("\x05\0Citt\xE0", 7));
  slot(25, plain(12));
  for (const std::size_t n : {26, 27, 28, 29, 31}) slot(n, plain(std::int16_t{-1}));
  slot(30, plain(0x102030));
  slot(32, plain(0x405060));
  for (std::size_t i = 0; i < 16; ++i) slot(33 + i, plain(0.1F * static_cast<float>(i)));
  EXPECT_EQ(bytes, expected);

  TestProgram other;
  write_bytes(other.bas.fileini, bytes);
  leggifileini_dis(other.doc);
  EXPECT_EQ(written(other), bytes);
}

TEST(Ini, WrongValuesTakeTheirDefaults) {
  const std::string number_tag = tagged(std::int16_t{1});
  const struct {
    const char* name;
    std::size_t slot;
    std::string bytes;
    bool taken;
  } cases[] = {
      {"pitch", 1, plain(0.0F), true},
      {"negative pitch", 1, plain(-1.0F), true},
      {"pitch without end", 2, plain(std::numeric_limits<float>::infinity()), false},
      {"switch of another case", 3, std::string("\x08\0\x02\0on", 6), false},
      {"number for a switch", 4, number_tag, false},
      {"text beyond its slot", 22, std::string("\x08\0\xFF\0ON", 6), false},
      {"highest colour", 5, tagged(std::int16_t{14}), true},
      {"colour too high", 5, tagged(std::int16_t{16}), false},
      {"negative colour", 6, tagged(-1.0), false},
      {"colour with a fraction", 6, tagged(2.5), false},
      {"no number for a colour", 6, tagged(std::numeric_limits<double>::quiet_NaN()), false},
      {"text for a colour", 7, dis_on, false},
      {"no tag", 7, std::string("\x09\0\x01\0", 4), false},
      {"hidden bar", 16, tagged(std::int16_t{0}), true},
      {"bar that is neither", 17, tagged(std::int16_t{2}), false},
      {"filter", 21, tagged(std::int16_t{4}), true},
      {"separator for a filter", 21, tagged(std::int16_t{5}), false},
      {"filter without end", 21, tagged(1e300), false},
      {"font name beyond its slot", 24, std::string("\x7F\0Arial", 7), false},
      {"print width", 48, plain(0.25F), true},
      {"print width without end", 33, plain(-std::numeric_limits<float>::infinity()), false},
  };
  for (const auto& c : cases) {
    TestProgram p;
    change_all(p.doc);
    std::string bytes = default_file();
    put_text(bytes, at(c.slot), c.bytes);
    write_bytes(p.bas.fileini, bytes);
    leggifileini_dis(p.doc);
    EXPECT_EQ(read_bytes(p.bas.fileini), bytes) << c.name;
    EXPECT_EQ(written(p), c.taken ? bytes : default_file()) << c.name;
  }
}

TEST(Ini, CutShortTakesWhatIsThere) {
  TestProgram full;
  change_all(full.doc);
  const std::string changed = written(full);
  for (std::size_t slots = 0; slots <= 48; ++slots) {
    for (const std::size_t extra : {0, 1, 3}) {
      TestProgram p;
      const std::size_t size = slots * slot_size + extra;
      write_bytes(p.bas.fileini, changed.substr(0, size));
      leggifileini_dis(p.doc);
      // The changed values of the whole slots, the defaults of the others; two bytes are a 16-bit value.
      const bool short_value = extra == 3 && slots + 1 >= 23 && changed[size - 1] == 0 &&
                               (slots + 1 == 23 || (slots + 1 >= 26 && slots + 1 <= 29) || slots + 1 == 31);
      const std::size_t taken = slots + (short_value ? 1 : 0);
      EXPECT_EQ(written(p), changed.substr(0, taken * slot_size) + default_file().substr(taken * slot_size)) << size;
    }
  }
}

TEST(Ini, FileSystemErrorsComeAfterTheDefaults) {
  for (const auto& [name, error] :
       {std::pair{"/manca/Trelvo.ini", error_path_not_found}, std::pair{"", error_path_access}}) {
    TestProgram p;
    change_all(p.doc);
    p.bas.fileini = p.folder.name() + name;
    EXPECT_EQ(error_of([&] { leggifileini_dis(p.doc); }), error);
    EXPECT_EQ(error_of([&] { salvafileini_dis(p.doc); }), error);
    p.bas.fileini = p.folder / "altro.ini";
    EXPECT_EQ(written(p), default_file());
  }
}

}  // namespace
}  // namespace trelvo
