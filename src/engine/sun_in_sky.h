// Where the Sun stands over a place, from the engine's own series and without a chart.
#pragma once

namespace engine {

// The Sun's place on the sky at one instant, degrees, by the mean equator and equinox of date:
// nutation is left out.
struct SunInSky {
  double rightAscension;  // -180 to 180
  double declination;
};

// `days` counts from Greenwich noon of 31 December 1899 (JD 2415020.0) in Universal Time.
SunInSky SunInSkyAt(double days);

// Sidereal time at Greenwich as an angle, degrees, 0 to below 360.
double GreenwichSiderealAngle(double days);

}  // namespace engine
