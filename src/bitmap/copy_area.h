// Copying a rectangle from one picture to another.
#pragma once

#include <cstdint>

#include "bitmap/pixels.h"

namespace bitmap {

// A place in a picture as it is seen: 0, 0 is the top left.
struct Corner {
  std::int32_t left = 0, top = 0;
};

// What would lie outside either picture is left out. Both may be the same.
void CopyArea(const Pixels& from, Corner source, Pixels& to, Corner target, std::int32_t width,
              std::int32_t height);

}  // namespace bitmap
