// Windows bitmap files.
#pragma once

#include <filesystem>

#include "bitmap/pixels.h"

namespace bitmap {

// Writes an uncompressed 24-bit file, replacing any existing one. InvalidCall for an empty picture
// or no resolution, FileAccess if the file cannot be written.
void WriteBmp(const std::filesystem::path& file, const Pixels& pixels, int dotsPerInch);

struct BmpPicture {
  Pixels pixels;
  int dotsPerInch = 0;  // 0 if the file does not say
};

// Reads an uncompressed file of 24 or 32 bits per pixel, with rows in either order; the fourth byte
// of a pixel is dropped. FileNotFound if the file does not exist, FileAccess if it cannot be read,
// InvalidCall if it is of another kind or shorter than its header says.
BmpPicture ReadBmp(const std::filesystem::path& file);

}  // namespace bitmap
