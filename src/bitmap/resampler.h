// Bilinear resampling.
#pragma once

#include "bitmap/pixels.h"

namespace bitmap {

// Fills the target with the source at the target's size. Each byte is rounded between the two rows
// and again between the two columns. The last target row and column do not reach the last source
// ones. Subscript for a source one pixel wide or high, which has no neighbour to look at.
void Resampler(const Pixels& source, Pixels& target);

}  // namespace bitmap
