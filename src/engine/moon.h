// The Moon's longitude from its series, and the mean node of its orbit.
#pragma once

namespace engine {

struct MoonPlace {
  double longitude;  // degrees, 0 to below 360
  double meanNode;   // degrees, 0 to below 360
};

// T in Julian centuries from the epoch.
MoonPlace CalcMoon(double T);

}  // namespace engine
