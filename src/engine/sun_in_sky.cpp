#include "engine/sun_in_sky.h"

#include <cmath>

#include "engine/angles.h"
#include "engine/ayanamsa.h"
#include "engine/houses.h"
#include "engine/planets.h"
#include "engine/time_base.h"

namespace engine {
namespace {

constexpr double kEpochDate = 1.5;            // the epoch as a foundation::DateTime
constexpr double kAberration = -20.5 / 3600;  // of the Sun, degrees

}  // namespace

SunInSky SunInSkyAt(double days) {
  const double T = days / kDaysPerCentury;
  const double ayanamsa = CalcAyanamsa(days + kEpochDate);
  SunVector place;
  const double sidereal = PlanetLongitude(Sun, {T, ayanamsa, Perturbations{}}, place);
  const SinCos longitude = SinCosOf((sidereal + ayanamsa + kAberration) * DegToRad);
  const SinCos obliquity = SinCosOf(MeanObliquity(T) * DegToRad);
  return {std::atan2(longitude.sin * obliquity.cos, longitude.cos) / DegToRad,
          std::asin(longitude.sin * obliquity.sin) / DegToRad};
}

double GreenwichSiderealAngle(double days) {
  const double dayPart = days - std::floor(days);
  return 15 * LocalSiderealTime({dayPart, days / kDaysPerCentury}, 0);
}

}  // namespace engine
