#include "day/sun_times.h"

#include <cmath>

#include "engine/angles.h"
#include "engine/sun_in_sky.h"

namespace day {
namespace {

using std::chrono::seconds;

constexpr double kHorizon = -(34.0 + 16.0) / 60;  // degrees: refraction and the Sun's half diameter
constexpr double kDegreesPerDay = 360;            // of the hour angle of the Sun
constexpr double kSecondsPerDay = 86400;
constexpr double kHalfSecond = 0.5 / kSecondsPerDay;

// Greenwich noon of 31 December 1899.
constexpr Instant kEpoch =
    std::chrono::sys_days(std::chrono::year(1899) / 12 / 31) + seconds(43200);

double DaysOf(Instant instant) {
  return static_cast<double>((instant - kEpoch).count()) / kSecondsPerDay;
}

Instant InstantOf(double days) {
  return kEpoch + seconds(static_cast<std::int64_t>(std::floor(days * kSecondsPerDay + 0.5)));
}

class Sky {
 public:
  Sky(double latitude, double longitude)
      : latitude_(engine::SinCosOf(latitude * engine::DegToRad)), longitude_(longitude) {}

  // Degrees west of the meridian, -180 to below 180.
  double HourAngle(double days) const {
    const double angle =
        engine::GreenwichSiderealAngle(days) + longitude_ - engine::SunInSkyAt(days).rightAscension;
    return engine::RealMod(angle + 180, 360) - 180;
  }

  // Above the horizon at which the Sun rises; degrees.
  double Height(double days) const {
    const engine::SinCos declination =
        engine::SinCosOf(engine::SunInSkyAt(days).declination * engine::DegToRad);
    const double hourAngle = HourAngle(days) * engine::DegToRad;
    const double sine =
        latitude_.sin * declination.sin + latitude_.cos * declination.cos * std::cos(hourAngle);
    return std::asin(sine) / engine::DegToRad - kHorizon;
  }

  double TransitNear(double days) const {
    for (int i = 0; i < 2; ++i) days -= HourAngle(days) / kDegreesPerDay;
    return days;
  }

  // When the height is 0 between two moments of the half day on one side of the transit; nothing if
  // both lie on one side of the horizon. False position in the form of Illinois: the height grows
  // or falls throughout.
  std::optional<Instant> Crossing(double from, double to) const {
    double low = Height(from), high = Height(to);
    if ((low > 0) == (high > 0)) return std::nullopt;
    double before = from, at = to;
    while (std::abs(at - before) > kHalfSecond) {
      before = at;
      at = to - high * (to - from) / (high - low);
      const double height = Height(at);
      if ((height > 0) == (high > 0)) {
        low /= 2;
      } else {
        from = to;
        low = high;
      }
      to = at;
      high = height;
    }
    return InstantOf(at);
  }

 private:
  engine::SinCos latitude_;
  double longitude_;
};

}  // namespace

SunTimes SunTimesNear(Instant instant, double latitude, double longitude) {
  const Sky sky(latitude, longitude);
  const double noon = sky.TransitNear(DaysOf(instant));
  return {sky.Crossing(noon - 0.5, noon), sky.Crossing(noon, noon + 0.5), sky.Height(noon) > 0};
}

}  // namespace day
