// The arc of a day: from sunrise at its left end, 180 degrees, to sunset at its right end, 0.
#pragma once

#include "dayperiods/weekday_segments.h"

namespace screens {

inline double AngleAt(double partOfDay) {
  return 180 * (1 - partOfDay);
}

// The start of segment 1 to 8, or for 9 the end of the last.
inline double SegmentAngle(int segment) {
  return AngleAt((segment - 1.0) / dayperiods::kSegmentsOfDaylight);
}

}  // namespace screens
