// Bitmaps as picture files: BMP with 24 bits a pixel, PNG without compression.
#pragma once

#include <string>

#include "platform/graphics.h"

namespace trelvo {

enum class ImageFormat { unknown, bmp, png };

// By the ending of the name, in either case.
ImageFormat image_format(const std::string& path);

std::string bmp_bytes(const Bitmap& image);
std::string png_bytes(const Bitmap& image);

// By its ending. False for an unknown ending, or if the file cannot be written.
bool write_image(const std::string& path, const Bitmap& image);

}  // namespace trelvo
