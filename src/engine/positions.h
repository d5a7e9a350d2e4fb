// The longitudes that one chart consists of, by body.
#pragma once

#include "foundation/bounded_array.h"

namespace engine {

// Where a body stands among the positions.
enum Body : int {
  Ayanamsa = 1,  // no body: the zero point's own longitude
  Sun,
  Mercury,
  Venus,
  Mars,
  Jupiter,
  Saturn,
  Moon,
  Rahu,
  Ketu,
  Uranus,
  Neptune,
  Pluto,
};

// The same body an hour later stands so many places further; the ayanamsa has no second value.
inline constexpr int kHourLater = 13;

// Degrees; element 0 is not used.
using Positions = foundation::BoundedArray<double, 0, 26>;

// Display number to place in the positions: the slot of the ayanamsa or ascendant, the Sun, the
// Moon, the planets by their weekdays, the nodes, the outer planets. Element 0 is not used.
inline constexpr foundation::BoundedArray<int, 0, 13> BodyOrder{
    {0, Ayanamsa, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Uranus, Neptune,
     Pluto}};

}  // namespace engine
