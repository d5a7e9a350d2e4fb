// The long inequalities of Jupiter and Saturn, as corrections to their elements.
#pragma once

namespace engine {

// What one planet's mean elements are changed by.
struct ElementTerms {
  double longitude = 0;     // degrees
  double perihelion = 0;    // degrees times eccentricity
  double eccentricity = 0;  // as it stands
  double axis = 0;          // astronomical units
};

struct Perturbations {
  ElementTerms JupiterTerms;
  ElementTerms SaturnTerms;
};

// T in Julian centuries from the epoch. Overflow or InvalidCall where T is so far away that a term
// has no value.
Perturbations CalcPerturbations(double T);

}  // namespace engine
