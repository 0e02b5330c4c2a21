#include "files/bmp_comando.h"

#include <gtest/gtest.h>

#include "full_disk.h"
#include "test_program.h"
#include "view/redraw.h"

namespace trelvo {
namespace {

struct Picture : TestProgram {
  std::string name = folder / "a.bmp";
  int save() {
    desktop.files = {name};
    return error_of([&] { creabmp(doc); });
  }
};

std::uint32_t number_at(const std::string& bytes, std::size_t place, int length = 4) {
  std::uint32_t value = 0;
  for (int i = length - 1; i >= 0; --i) {
    value = value << 8 | static_cast<unsigned char>(bytes.at(place + static_cast<std::size_t>(i)));
  }
  return value;
}

// Rows from the bottom, blue green red, each row filled up to four bytes.
Bitmap read_bmp(const std::string& bytes) {
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(number_at(bytes, 2), bytes.size());
  EXPECT_EQ(number_at(bytes, 28, 2), 24U);
  EXPECT_EQ(number_at(bytes, 30), 0U);
  Bitmap picture;
  picture.width = static_cast<int>(number_at(bytes, 18));
  picture.height = static_cast<int>(number_at(bytes, 22));
  const auto row = static_cast<std::size_t>((picture.width * 3 + 3) / 4 * 4);
  for (int y = picture.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width; ++x) {
      const std::size_t at = number_at(bytes, 10) + static_cast<std::size_t>(y) * row + static_cast<std::size_t>(3 * x);
      picture.pixels.push_back(0xFF000000U | number_at(bytes, at, 3));
    }
  }
  return picture;
}

TEST(BmpComando, KeptPicturePixelForPixel) {
  for (const int pixels : {37, 38, 39, 40}) {
    Picture p;
    p.doc.surface.resize(static_cast<float>(15 * pixels), 450);
    redraw(p.doc);
    p.doc.surface.Line(0, 0, 300, 450, rgb(200, 100, 50));
    // What a running command shows is not in it.
    p.doc.surface.set_AutoRedraw(false);
    p.doc.surface.Line(0, 450, 300, 0, rgb(1, 2, 3));
    ASSERT_EQ(p.save(), 0);
    const Bitmap read = read_bmp(read_bytes(p.name));
    EXPECT_EQ(read.width, pixels);
    EXPECT_EQ(read.height, 30);
    EXPECT_EQ(read.pixels, p.doc.surface.Image().pixels);
    EXPECT_NE(read.pixels, p.doc.surface.screen().pixels);
  }
}

TEST(BmpComando, QuestionsAndRefusals) {
  Picture p;
  write_bytes(p.name, "old");
  p.save();
  EXPECT_EQ(p.desktop.messages, std::vector<std::string>{"File \"" + p.name + "\"  Esiste - Sovrapporre?"});
  EXPECT_EQ(read_bytes(p.name), "old");
  p.desktop.answers = {answer_yes};
  p.save();
  EXPECT_EQ(read_bytes(p.name).size(), 54 + 1000U * 600 * 3);
  EXPECT_EQ(p.bas.frmMain.CommonDialog1.Filter, "Immagine BMP (*.BMP)|*.BMP|");

  p.desktop.messages.clear();
  p.name = p.folder / "no/a.bmp";
  EXPECT_EQ(p.save(), 0);
  EXPECT_TRUE(p.desktop.messages.empty());
}

TEST(BmpComando, FailedWritingIsAnErrorAndLeavesNoHalfPicture) {
  Picture p;
  const FullDisk full(100000);
  EXPECT_EQ(p.save(), error_disk_full);
  EXPECT_EQ(std::filesystem::file_size(p.name), 0U);
  EXPECT_EQ(p.desktop.MousePointer, pointer_default);
}

}  // namespace
}  // namespace trelvo
