#include "platform/image_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string_view>

namespace trelvo {
namespace {

using namespace std::string_view_literals;

Bitmap bitmap(int width, int height, std::vector<std::uint32_t> pixels) { return {width, height, std::move(pixels)}; }

std::string bytes(std::initializer_list<int> values) {
  std::string out;
  for (const int value : values) out += static_cast<char>(value);
  return out;
}

TEST(ImageFile, FormatByEnding) {
  struct {
    const char* path;
    ImageFormat format;
  } const cases[] = {{"a.bmp", ImageFormat::bmp},     {"/x/y.PNG", ImageFormat::png}, {".png", ImageFormat::png},
                     {"a.jpg", ImageFormat::unknown}, {"png", ImageFormat::unknown},  {"", ImageFormat::unknown}};
  for (const auto& c : cases) EXPECT_EQ(image_format(c.path), c.format) << c.path;
}

TEST(ImageFile, BmpRowsRunUpwardsAndArePadded) {
  const std::string file = bmp_bytes(bitmap(1, 2, {0xFF112233, 0xFFFF0001}));
  EXPECT_EQ(file, bytes({'B', 'M', 62, 0, 0, 0, 0, 0,  0, 0, 54, 0, 0,    0,    40,   0, 0,    0,    1,    0, 0,
                         0,   2,   0,  0, 0, 1, 0, 24, 0, 0, 0,  0, 0,    8,    0,    0, 0,    0,    0,    0, 0,
                         0,   0,   0,  0, 0, 0, 0, 0,  0, 0, 0,  0, 0x01, 0x00, 0xFF, 0, 0x33, 0x22, 0x11, 0}));
}

TEST(ImageFile, Png) {
  constexpr auto expected =
      "\x89PNG\r\n\x1A\n"
      "\0\0\0\x0DIHDR\0\0\0\x02\0\0\0\x01\x08\x02\0\0\0\x7B\x40\xE8\xDD"
      "\0\0\0\x12IDAT\x78\x01\x01\x07\0\xF8\xFF\0\x11\x22\x33\xFF\0\0\x04\xE0\x01\x66\xB1\x8E\xA0\xAC"
      "\0\0\0\0IEND\xAE\x42\x60\x82"sv;
  EXPECT_EQ(png_bytes(bitmap(2, 1, {0xFF112233, 0xFFFF0000})), expected);
}

// More than one stored block: each ends the header's promise of 65535 bytes, only the last is marked as such.
TEST(ImageFile, PngOfManyBlocks) {
  const std::string file = png_bytes(bitmap(300, 100, std::vector<std::uint32_t>(30000, 0xFFFFFFFF)));
  const std::size_t data = 8 + 25 + 8 + 2;
  EXPECT_EQ(file.substr(data, 5), "\0\xFF\xFF\0\0"sv);
  EXPECT_EQ(file.substr(data + 5 + 65535, 5), "\x01\xF5\x5F\x0A\xA0"sv);  // the rest: 24565 bytes
  EXPECT_EQ(file.size(), data + 2 * 5 + 90100 + 4 + 4 + 12);
}

TEST(ImageFile, WritesAFileOrSaysNo) {
  const std::string path = testing::TempDir() + "image_file_test.bmp";
  const Bitmap image = bitmap(3, 1, {1, 2, 3});
  ASSERT_TRUE(write_image(path, image));
  std::ifstream file(path, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), bmp_bytes(image));
  std::remove(path.c_str());
  EXPECT_FALSE(write_image(testing::TempDir() + "no such folder/a.bmp", image));
  EXPECT_FALSE(write_image(testing::TempDir() + "a.gif", image));
}

}  // namespace
}  // namespace trelvo
