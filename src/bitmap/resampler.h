// Bilinear resampling.
#pragma once

#include "bitmap/pixels.h"

namespace bitmap {

// Scales the source to the target's size. Each byte is rounded after blending two rows and again
// after blending two columns. The last target row and column do not reach the last source ones.
// Subscript for a source one pixel wide or high, which has no neighbours to blend.
void Resampler(const Pixels& source, Pixels& target);

}  // namespace bitmap
