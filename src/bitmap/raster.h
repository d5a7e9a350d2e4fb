// Between pixels and the dots of a picture.
#pragma once

#include "bitmap/pixels.h"
#include "forms/picture.h"

namespace bitmap {

// Each takes the picture as it is seen. InvalidCall for no dots, or for fewer of them than width
// and height say; the other errors of Pixels.
Pixels ToPixels(const forms::Raster& dots);
forms::Raster ToRaster(const Pixels& pixels);

}  // namespace bitmap
