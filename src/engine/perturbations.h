// The long inequalities of Jupiter and Saturn, as corrections to their elements.
#pragma once

namespace engine {

// Corrections to a planet's mean elements.
struct ElementTerms {
  double longitude = 0;     // degrees
  double perihelion = 0;    // degrees times eccentricity
  double eccentricity = 0;  // added unscaled
  double axis = 0;          // astronomical units
};

struct Perturbations {
  ElementTerms JupiterTerms;
  ElementTerms SaturnTerms;
};

// T in Julian centuries from the epoch. Overflow or InvalidCall if T is too large for a term to
// have a value.
Perturbations CalcPerturbations(double T);

}  // namespace engine
