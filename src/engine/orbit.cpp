#include "engine/orbit.h"

#include <cmath>

#include "engine/angles.h"
#include "foundation/checked.h"

namespace engine {
namespace {

using foundation::Divide;

// Solves Kepler's equation by Newton's method, in radians. Stops after the first step within the
// limit, which is enough for these mean elements.
double EccentricAnomaly(double meanAnomaly, double eccentricity) {
  constexpr double kStepLimit = 0.01;
  double e = meanAnomaly + eccentricity * std::sin(meanAnomaly);
  double step;
  do {
    const SinCos of = SinCosOf(e);
    step = Divide(e - eccentricity * of.sin - meanAnomaly, 1 - eccentricity * of.cos);
    e = e - step;
  } while (std::abs(step) > kStepLimit);
  return e;
}

const double kTanEighth = std::tan(PiValue / 4);

// tan(PiValue / 4 - g / 2), where g is the angle whose sine is the eccentricity.
double EccentricityTangent(double eccentricity) {
  const double tanHalf =
      Divide(eccentricity, 1 + foundation::SquareRoot(1 - eccentricity * eccentricity));
  return Divide(kTanEighth - tanHalf, 1 + kTanEighth * tanHalf);
}

// tan(E / 2), in the form that stays accurate near half a turn.
double HalfTangent(const SinCos& E) {
  return E.cos > 0 ? E.sin / (1 + E.cos) : Divide(1 - E.cos, E.sin);
}

// Sine and cosine of twice the arctangent of t.
SinCos TwiceArctangent(double t) {
  const double square = t * t;
  return {2 * t / (1 + square), (1 - square) / (1 + square)};
}

// The longitude of a vector in degrees.
double Direction(double x, double y) {
  const double l = std::atan(Divide(y, x)) / DegToRad;
  if (x < 0) return l + 180;
  return y < 0 ? l + 360 : l;
}

}  // namespace

double OrbitLongitude(const OrbitElements& orbit, Body body, SunVector& sun) {
  // Comes first: it rejects an eccentricity beyond 1, for which Newton's method may not converge.
  const double eccentricityTangent = EccentricityTangent(orbit.Ecc);

  double meanAnomaly = orbit.L - orbit.Peri;
  if (meanAnomaly < 0) meanAnomaly += 360;
  const SinCos E = SinCosOf(EccentricAnomaly(meanAnomaly * DegToRad, orbit.Ecc));
  const double r = orbit.Axis * (1 - orbit.Ecc * E.cos);

  // Half the true anomaly lies within 0 to PiValue.
  const double q = Divide(HalfTangent(E), eccentricityTangent);
  const double turn = q < 0 ? 2 * PiValue : 0;
  const SinCos u = TwiceArctangent(q) + SinCosOf(turn + orbit.Peri * DegToRad);
  const SinCos n = SinCosOf(orbit.Node * DegToRad);
  const SinCos w = u - n;
  const double c = 1 - std::cos(orbit.Incl * DegToRad);
  const double x = r * (u.cos + n.sin * w.sin * c);
  const double y = r * (u.sin - n.cos * w.sin * c);

  if (body == Sun) sun = {x, y};  // the sum below is then twice the vector, with the same direction
  return Direction(x + sun.SunX, y + sun.SunY);
}

}  // namespace engine
