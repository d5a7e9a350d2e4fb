// Sidereal time and the twelve houses, by trisection of the quadrants.
#pragma once

#include "engine/time_base.h"
#include "foundation/bounded_array.h"

namespace engine {

// Degrees by house 1 to 12; element 0 is not used.
using HouseTable = foundation::BoundedArray<double, 0, 12>;

struct Houses {
  HouseTable Cusps;    // 1 is the ascendant, 10 the midheaven
  HouseTable Sandhis;  // i is the junction of the houses i - 1 and i
};

// Hours, 0 to below 24, at a longitude in degrees, east positive.
double LocalSiderealTime(const TimeBase& time, double longitude);

// The frame that a longitude rises in, both in degrees.
struct RisingFrame {
  double Obliquity;  // mean
  double AyanValue;  // taken off the result
};

// The longitude that rises where the sidereal time is `Hours` and the latitude `Lat` degrees, in
// degrees. Exactly 90, with no ayanamsa off, where both are 0. DivisionByZero where the rising
// point has no direction.
double AscendantAt(double Hours, double Lat, const RisingFrame& frame);

// Sidereal time in hours, latitude in degrees; T in Julian centuries, for the obliquity. The
// ayanamsa in degrees is taken off every cusp. Cusps and junctions are 0 to 360 degrees; errors as
// AscendantAt.
Houses CalcHouses(double siderealTime, double latitude, double T, double ayanamsa);

}  // namespace engine
