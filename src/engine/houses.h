// Sidereal time and the twelve houses, by dividing each quadrant in three.
#pragma once

#include "engine/time_base.h"
#include "foundation/bounded_array.h"

namespace engine {

// Degrees by house 1 to 12; element 0 is unused.
using HouseTable = foundation::BoundedArray<double, 0, 12>;

struct Houses {
  HouseTable Cusps;    // 1 is the ascendant, 10 the midheaven
  HouseTable Sandhis;  // element i lies between houses i - 1 and i
};

// Local sidereal time in hours, 0 to below 24; the longitude is in degrees, east positive.
double LocalSiderealTime(const TimeBase& time, double longitude);

// The obliquity of the ecliptic in degrees, without nutation; T in Julian centuries.
double MeanObliquity(double T);

// What the rising longitude depends on besides time and latitude, in degrees.
struct RisingFrame {
  double Obliquity;  // mean
  double AyanValue;  // ayanamsa, subtracted from the result
};

// The longitude in degrees that rises at sidereal time `Hours` and latitude `Lat` in degrees.
// Exactly 90, without subtracting the ayanamsa, if both are 0. DivisionByZero if the rising point
// has no direction.
double AscendantAt(double Hours, double Lat, const RisingFrame& frame);

// siderealTime in hours, latitude in degrees, T in Julian centuries (for the obliquity). The
// ayanamsa in degrees is subtracted from every cusp. Cusps and junctions are 0 to 360 degrees.
// Errors as for AscendantAt.
Houses CalcHouses(double siderealTime, double latitude, double T, double ayanamsa);

}  // namespace engine
