// Geocentric longitude from the elements of an elliptic orbit.
#pragma once

#include "engine/positions.h"

namespace engine {

struct OrbitElements {
  double L;     // mean longitude, degrees
  double Peri;  // longitude of the perihelion, degrees
  double Node;  // longitude of the ascending node, degrees
  double Ecc;   // eccentricity, below 1
  double Incl;  // inclination to the ecliptic, degrees
  double Axis;  // semi-major axis, astronomical units
};

// The Sun as seen from the Earth, in astronomical units on the ecliptic.
struct SunVector {
  double SunX = 0;
  double SunY = 0;
};

// The geocentric longitude in degrees, 0 to 360, without light time, aberration or nutation. The
// call for the Sun fills `sun`; calls for planets need it filled for the same moment. InvalidCall
// for an eccentricity beyond 1; DivisionByZero for a body exactly a quarter turn from the zero
// point.
double OrbitLongitude(const OrbitElements& orbit, Body body, SunVector& sun);

}  // namespace engine
