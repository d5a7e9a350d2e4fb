// The longitudes of a chart, by body.
#pragma once

#include "foundation/bounded_array.h"

namespace engine {

// Index of a body in Positions.
enum Body : int {
  Ayanamsa = 1,  // not a body: the longitude of the zero point
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

// Offset from a body's slot to its position an hour later; the ayanamsa has no later value.
inline constexpr int kHourLater = 13;

// Degrees; element 0 is unused.
using Positions = foundation::BoundedArray<double, 0, 26>;

// Maps display numbers to slots in Positions: the ayanamsa (or ascendant), the Sun, the Moon, the
// planets in weekday order, the nodes, the outer planets. Element 0 is unused.
inline constexpr foundation::BoundedArray<int, 0, 13> BodyOrder{
    {0, Ayanamsa, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Uranus, Neptune,
     Pluto}};

}  // namespace engine
