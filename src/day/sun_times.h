// Sunrise and sunset from the engine's Sun, at any latitude.
#pragma once

#include <optional>

#include "clocks/zone_clock.h"

namespace day {

using clocks::Instant;

// The day around one noon. With neither rise nor set the Sun stays up (`up`) or down.
struct SunTimes {
  std::optional<Instant> rise;  // within the half day before the noon
  std::optional<Instant> set;   // within the half day after it
  bool up = false;              // at the noon itself
};

// Around the Sun's transit nearest to an instant. Rising and setting are those of the upper limb
// over a level horizon, with the usual refraction of 34'. Degrees, north and east positive.
SunTimes SunTimesNear(Instant instant, double latitude, double longitude);

}  // namespace day
