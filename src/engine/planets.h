// The Sun and the eight planets: mean elements and what each body changes in its own.
#pragma once

#include "engine/orbit.h"
#include "engine/perturbations.h"

namespace engine {

// A quantity that grows evenly with the time in Julian centuries.
struct Linear {
  double rate;
  double start;  // at the epoch

  constexpr double At(double T) const { return T * rate + start; }
};

// Elements referred to a fixed sidereal zero point, the longitude in revolutions.
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

// Of the Sun and the planets; Subscript for any other.
const MeanElements& MeanElementsOf(Body body);

// Elements at one moment and the arguments of their corrections.
struct PlanetTime {
  double T;                            // Julian centuries
  double ayanamsa;                     // degrees, for the sines of the outer planets
  const Perturbations& perturbations;  // of the chart's moment, also an hour later
};

// The geocentric longitude of the Sun or a planet in degrees; see OrbitLongitude.
double PlanetLongitude(Body body, const PlanetTime& at, SunPlace& sun);

}  // namespace engine
