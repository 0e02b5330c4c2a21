#include "platform/image_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <string_view>

namespace trelvo {

namespace {

constexpr std::size_t bytes_per_pixel = 3;

std::size_t width_of(const Bitmap& image) { return static_cast<std::size_t>(image.width); }
std::size_t height_of(const Bitmap& image) { return static_cast<std::size_t>(image.height); }

char byte(std::size_t value) { return static_cast<char>(static_cast<unsigned char>(value & 0xFFU)); }

void little(std::string& out, std::size_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += byte(value >> (8 * i));
}

void big32(std::string& out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out += byte(value >> shift);
}

using Crc = std::array<std::uint32_t, 256>;

constexpr Crc crc_table() {
  Crc table{};
  for (std::uint32_t n = 0; n < table.size(); ++n) {
    std::uint32_t c = n;
    for (int bit = 0; bit < 8; ++bit) c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  return table;
}

std::uint32_t crc(std::string_view data) {
  static constexpr Crc table = crc_table();
  std::uint32_t c = 0xFFFFFFFFU;
  for (const char d : data) c = table[(c ^ static_cast<unsigned char>(d)) & 0xFFU] ^ (c >> 8);
  return ~c;
}

std::uint32_t adler(std::string_view data) {
  constexpr std::uint32_t base = 65521;
  constexpr std::size_t batch = 5552;  // as many sums as fit before they have to be reduced
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (std::size_t at = 0; at < data.size(); at += batch) {
    for (const char d : data.substr(at, batch)) {
      a += static_cast<unsigned char>(d);
      b += a;
    }
    a %= base;
    b %= base;
  }
  return (b << 16) | a;
}

// A zlib stream of stored blocks.
std::string stored(std::string_view data) {
  constexpr std::size_t longest = 65535;
  std::string out("\x78\x01", 2);
  std::size_t at = 0;
  do {
    const std::string_view block = data.substr(at, longest);
    at += block.size();
    out += byte(at == data.size() ? 1 : 0);
    little(out, block.size(), 2);
    little(out, ~block.size(), 2);
    out += block;
  } while (at < data.size());
  big32(out, adler(data));
  return out;
}

void chunk(std::string& out, std::string_view type, std::string_view data) {
  big32(out, static_cast<std::uint32_t>(data.size()));
  const std::string body = std::string(type) + std::string(data);
  out += body;
  big32(out, crc(body));
}

void blue_green_red(std::string& out, std::uint32_t pixel) { little(out, pixel, 3); }

void red_green_blue(std::string& out, std::uint32_t pixel) {
  for (int shift = 16; shift >= 0; shift -= 8) out += byte(pixel >> shift);
}

template <class Pixel>
void row_into(std::string& out, const Bitmap& image, std::size_t y, Pixel&& pixel) {
  const std::uint32_t* row = image.pixels.data() + y * width_of(image);
  for (std::size_t x = 0; x < width_of(image); ++x) pixel(out, row[x]);
}

}  // namespace

ImageFormat image_format(const std::string& path) {
  std::string ending = path.substr(path.size() - std::min<std::size_t>(path.size(), 4));
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (ending == ".bmp") return ImageFormat::bmp;
  if (ending == ".png") return ImageFormat::png;
  return ImageFormat::unknown;
}

std::string bmp_bytes(const Bitmap& image) {
  constexpr std::size_t headers = 14 + 40;
  const std::size_t row = (width_of(image) * bytes_per_pixel + 3) / 4 * 4;
  const std::size_t body = row * height_of(image);
  std::string out = "BM";
  out.reserve(headers + body);
  little(out, headers + body, 4);
  little(out, 0, 4);
  little(out, headers, 4);

  little(out, 40, 4);
  little(out, width_of(image), 4);
  little(out, height_of(image), 4);
  little(out, 1, 2);
  little(out, bytes_per_pixel * 8, 2);
  little(out, 0, 4);
  little(out, body, 4);
  out.append(16, '\0');

  for (std::size_t y = height_of(image); y-- > 0;) {
    row_into(out, image, y, blue_green_red);
    out.append(row - width_of(image) * bytes_per_pixel, '\0');
  }
  return out;
}

std::string png_bytes(const Bitmap& image) {
  std::string header;
  big32(header, static_cast<std::uint32_t>(image.width));
  big32(header, static_cast<std::uint32_t>(image.height));
  header.append("\x08\x02\x00\x00\x00", 5);  // 8 bits, red green blue

  std::string rows;
  rows.reserve(height_of(image) * (width_of(image) * bytes_per_pixel + 1));
  for (std::size_t y = 0; y < height_of(image); ++y) {
    rows += '\0';  // unfiltered
    row_into(rows, image, y, red_green_blue);
  }

  std::string out = "\x89PNG\r\n\x1A\n";
  chunk(out, "IHDR", header);
  chunk(out, "IDAT", stored(rows));
  chunk(out, "IEND", {});
  return out;
}

bool write_image(const std::string& path, const Bitmap& image) {
  const ImageFormat format = image_format(path);
  if (format == ImageFormat::unknown) return false;
  const std::string bytes = format == ImageFormat::bmp ? bmp_bytes(image) : png_bytes(image);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

}  // namespace trelvo
