// Copying a rectangle from one picture to another.
#pragma once

#include <cstdint>

#include "bitmap/pixels.h"

namespace bitmap {

// A position in a picture as seen: 0, 0 is the top left.
struct Corner {
  std::int32_t left = 0, top = 0;
};

// Clips to both pictures, which may be the same.
void CopyArea(const Pixels& from, Corner source, Pixels& to, Corner target, std::int32_t width,
              std::int32_t height);

}  // namespace bitmap
