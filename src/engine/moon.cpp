#include "engine/moon.h"

#include <cmath>

#include "engine/angles.h"
#include "engine/moon_terms.h"
#include "engine/planets.h"

namespace engine {
namespace {

// Degrees.
struct MeanArguments {
  double Ls, Ps;  // the Sun and its perigee
  double Lm, Pm;  // the Moon and its perigee
  double N;       // the node

  explicit MeanArguments(double T)
      : Ls(360 * FractionOf(MeanElementsOf(Sun).L.At(T))),
        Ps(MeanElementsOf(Sun).Peri.At(T)),
        Lm(360 * FractionOf(T * 1336.851353 + 0.68882)),
        Pm(360 * FractionOf(T * 11.298994 + 0.8663 - T * 3e-05 * T)),
        N(360 * FractionOf(0.65756 - T * 5.376495)) {}
};

double SeriesFrom(const MeanArguments& mean) {
  const Multiples<3> anomaly((mean.Lm - mean.Pm) * DegToRad);
  const Multiples<2> sunAnomaly((mean.Ls - mean.Ps) * DegToRad);
  const Multiples<4> elongation((mean.Lm - mean.Ls) * DegToRad);
  const Multiples<2> latitude((mean.Lm - mean.N) * DegToRad);
  const Multiples<1> node(mean.N * DegToRad);
  double l = mean.Lm;
  for (const MoonTerm& term : kMoonTerms) {
    const SinCos argument = anomaly[term.anomaly] + elongation[term.elongation] +
                            sunAnomaly[term.sunAnomaly] + latitude[term.latitude] + node[term.node];
    l += term.coefficient * argument.sin;
  }
  return l;
}

}  // namespace

MoonPlace CalcMoon(double T) {
  const MeanArguments mean(T);
  const double l = SeriesFrom(mean);
  // Reduction from the orbit to the ecliptic.
  double m = l - 0.1143 * std::sin(2 * (l - mean.N) * DegToRad) + 0.004;
  if (m >= 360) m -= 360;
  if (m < 0) m += 360;
  return {m, mean.N};
}

}  // namespace engine
