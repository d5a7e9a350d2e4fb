// The arc of a day: from sunrise at its left foot to sunset at its right one, in degrees.
#pragma once

#include "dayperiods/weekday_segments.h"

namespace screens {

inline double AngleAt(double partOfDay) {
  return 180 * (1 - partOfDay);
}

// Where segment 1 to 8 begins, and for 9 where the last one ends.
inline double SegmentAngle(int segment) {
  return AngleAt((segment - 1.0) / dayperiods::kSegmentsOfDaylight);
}

}  // namespace screens
