#include "engine/planets.h"

#include <cmath>

#include "engine/angles.h"
#include "foundation/checked.h"

namespace engine {
namespace {

// Two lines per body. Each pair is the rate per century and the value at the epoch; the axis is
// constant.
// clang-format off
constexpr MeanElements kMeanElements[] = {
    //        L                      Peri                    Node
    //        Ecc                    Incl                    Axis
    {Sun,     {99.99826, 0.71455},   {0.323, 258.76},        {0, 0},
              {-4.2e-05, 0.016751},  {0, 0},                 1.0},
    {Mercury, {415.20187, 0.43255},  {0.159, 53.44},         {-0.211, 24.69},
              {2e-05, 0.205614},     {0.001861, 7.00288},    0.3871},
    {Venus,   {162.54949, 0.88974},  {0.012, 107.7},         {-0.496, 53.22},
              {-4.8e-05, 0.00682},   {0.001, 3.39363},       0.72333},
    {Mars,    {53.16751, 0.75358},   {0.445, 311.76},        {-0.625, 26.33},
              {-9.2e-05, 0.093313},  {-0.000675, 1.850333},  1.5237},
    {Jupiter, {8.43029, 0.59886},    {0.214, 350.26},        {-0.386, 76.98},
              {-0.000164, 0.048335}, {-0.005696, 1.308376},  5.2026},
    {Saturn,  {3.39476, 0.67807},    {0.562, 68.64},         {-0.523, 90.33},
              {-0.000346, 0.055892}, {-0.00392, 2.49252},    9.5547},
    {Uranus,  {1.19019, 0.61372},    {0.088, 149.09},        {-0.897, 51.02},
              {-2.7e-05, 0.046344},  {0.000625, 0.772464},   19.218},
    {Neptune, {0.60692, 0.17361},    {0.028, 24.27},         {-0.297, 108.22},
              {6e-06, 0.009},        {-0.009544, 1.779242},  30.11},
    {Pluto,   {0.40254, 0.19434},    {0.002, 200.02},        {-0.038, 86.49},
              {0, 0.248644},         {-0.005531, 17.146778}, 39.52},
};
// clang-format on

void Perturb(OrbitElements& orbit, const ElementTerms& terms) {
  orbit.L += terms.longitude;
  orbit.Ecc += terms.eccentricity;
  orbit.Peri += foundation::Divide(terms.perihelion, orbit.Ecc);
  orbit.Axis += terms.axis;
}

double SinDegrees(double x) {
  return std::sin(x * DegToRad);
}

}  // namespace

OrbitElements MeanElements::At(double T) const {
  return {360 * FractionOf(L.At(T)), Peri.At(T), Node.At(T), Ecc.At(T), Incl.At(T), Axis};
}

const MeanElements& MeanElementsOf(Body body) {
  for (const MeanElements& row : kMeanElements) {
    if (row.body == body) return row;
  }
  throw foundation::Error(foundation::ErrorKind::Subscript);
}

double PlanetLongitude(Body body, const PlanetTime& at, SunVector& sun) {
  OrbitElements orbit = MeanElementsOf(body).At(at.T);
  const double L0 = orbit.L;
  switch (body) {
    case Jupiter:
      Perturb(orbit, at.perturbations.JupiterTerms);
      break;
    case Saturn:
      Perturb(orbit, at.perturbations.SaturnTerms);
      break;
    case Uranus:
      orbit.L = L0 - 0.166 * SinDegrees(L0 + 50.0 + at.ayanamsa);
      break;
    case Neptune:
      // Adds centuries as if they were radians.
      orbit.L =
          L0 + 0.1 - 0.1 * SinDegrees(L0 / 2 - 90.0 + at.ayanamsa) + 0.166 * std::sin(at.T - 1.0);
      break;
    case Pluto:
      orbit.L = L0 - 0.1 * SinDegrees(L0 + at.ayanamsa);
      break;
    default:
      break;
  }
  return OrbitLongitude(orbit, body, sun);
}

}  // namespace engine
