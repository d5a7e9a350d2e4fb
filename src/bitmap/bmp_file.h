// Windows bitmap files.
#pragma once

#include <filesystem>

#include "bitmap/pixels.h"

namespace bitmap {

// Writes an uncompressed 24-bit file, over a former one. InvalidCall for no picture or no
// resolution, FileAccess where the file cannot be written.
void WriteBmp(const std::filesystem::path& file, const Pixels& pixels, int dotsPerInch);

struct BmpPicture {
  Pixels pixels;
  int dotsPerInch = 0;  // 0 where the file does not say
};

// The picture of an uncompressed file of 24 or 32 bits a pixel, with rows in either order; the
// fourth byte of a pixel is dropped. FileNotFound where there is no file, FileAccess where it
// cannot be read, InvalidCall where it is of another kind or shorter than it says.
BmpPicture ReadBmp(const std::filesystem::path& file);

}  // namespace bitmap
