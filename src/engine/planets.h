// The Sun and the eight planets: mean elements and the corrections to each.
#pragma once

#include "engine/orbit.h"
#include "engine/perturbations.h"

namespace engine {

// A quantity that is linear in the time, in Julian centuries.
struct Linear {
  double rate;
  double start;  // at the epoch

  constexpr double At(double T) const { return T * rate + start; }
};

// Mean elements, referred to a fixed sidereal zero point.
struct MeanElements {
  Body body;
  Linear L;     // revolutions
  Linear Peri;  // degrees
  Linear Node;  // degrees
  Linear Ecc;
  Linear Incl;  // degrees
  double Axis;  // astronomical units

  OrbitElements At(double T) const;
};

// Defined for the Sun and the planets; Subscript for any other body.
const MeanElements& MeanElementsOf(Body body);

// The moment to evaluate at, and what the corrections need.
struct PlanetTime {
  double T;                            // Julian centuries
  double ayanamsa;                     // degrees, for the outer planets' corrections
  const Perturbations& perturbations;  // of the chart's moment, also an hour later
};

// The geocentric longitude of the Sun or a planet in degrees; see OrbitLongitude.
double PlanetLongitude(Body body, const PlanetTime& at, SunVector& sun);

}  // namespace engine
