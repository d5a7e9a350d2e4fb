// Conversion between Pixels and forms::Raster.
#pragma once

#include "bitmap/pixels.h"
#include "forms/picture.h"

namespace bitmap {

// Both keep the picture as seen. InvalidCall for an empty raster, or one with fewer pixels than
// width and height imply; other errors of Pixels.
Pixels ToPixels(const forms::Raster& dots);
forms::Raster ToRaster(const Pixels& pixels);

}  // namespace bitmap
