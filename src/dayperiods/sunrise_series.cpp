// The solar series of clsBirthDetails: low-precision mean longitude, equation of centre and
// obliquity, and the hour angle at which the Sun's upper limb meets the refracted horizon.

#include <cmath>

#include "dayperiods/clsBirthDetails.h"
#include "foundation/checked.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "foundation/text.h"

namespace dayperiods {
namespace {

using foundation::Divide;
using foundation::NumberText;
using foundation::SquareRoot;

// Written with the digits that the series was fitted with.
constexpr double kPi = 3.14159265358979;
constexpr double kTwoPi = 6.28318530717958;
constexpr double kRadToDeg = 180 / kPi;
constexpr double kDegToRad = kPi / 180;

constexpr double kHighestLatitude = 63;      // degrees
constexpr double kHorizonAltitude = -0.833;  // degrees: refraction and the Sun's semidiameter
constexpr double kTolerance = 0.001;         // radians, 14 seconds of time
constexpr int kMaxRounds = 35;

// Days from J2000.0 to midnight of a date.
double DaysFromJ2000(int year, int month, int day) {
  const auto byYear =
      foundation::IntegerDivide(7 * (year + foundation::IntegerDivide(month + 9, 12)), 4);
  const auto byMonth = foundation::IntegerDivide(275 * month, 9);
  return static_cast<double>(367 * year - byYear + byMonth + day) - 730531.5;
}

struct SunPlace {
  double declination;     // radians
  double equationOfTime;  // radians
};

// The Sun `t` Julian centuries from J2000.0.
SunPlace SunAt(double t, clsBirthDetails& details) {
  const double meanLongitude = details.GetRange(4.8949504201433 + 628.331969753199 * t);
  const double meanAnomaly = details.GetRange(6.2400408 + 628.3019501 * t);
  const double centre = 0.033423 * std::sin(meanAnomaly) + 0.00034907 * std::sin(2 * meanAnomaly);
  const double lambda = centre + meanLongitude;
  const double equation =
      -centre + 0.0430398 * std::sin(2 * lambda) - 0.00092502 * std::sin(4 * lambda);
  const double obliquity = 0.409093 - 0.0002269 * t;
  const double x = std::sin(lambda) * std::sin(obliquity);
  return {std::atan(x / SquareRoot(1 - x * x)), equation};
}

// Arc cosine by a plain arctangent, so 180 degrees too small for a negative cosine; Sunrise makes
// up for it.
double HourAngle(double cosine) {
  if (cosine == 0) return 0;
  return std::atan(SquareRoot(1 - cosine * cosine) / cosine);
}

// Universal Time of the event in radians. Fails if the Sun stays on one side of the horizon.
double EventTime(double latitude, double longitude, double sign, double days,
                 clsBirthDetails& details) {
  const double sinAltitude = std::sin(kHorizonAltitude * kDegToRad);
  const double sinLatitude = std::sin(latitude * kDegToRad);
  const double cosLatitude = std::cos(latitude * kDegToRad);
  const double eastward = longitude * kDegToRad;

  double before = kPi;
  double time = 0;
  for (int round = 0; round < kMaxRounds && std::abs(before - time) > kTolerance; ++round) {
    before = time;
    const SunPlace sun = SunAt((days + before / (2 * kPi)) / 36525, details);
    const double greenwich = before - kPi + sun.equationOfTime;
    const double cosine = Divide(sinAltitude - std::sin(sun.declination) * sinLatitude,
                                 std::cos(sun.declination) * cosLatitude);
    time = details.GetRange(before - (greenwich + eastward + HourAngle(cosine) * sign));
  }
  return time;
}

}  // namespace

double clsBirthDetails::GetRange(double x) {
  const double turns = foundation::Finite(x) / kTwoPi;
  const double angle = kTwoPi * (turns - std::trunc(turns));
  return angle < 0 ? angle + kTwoPi : angle;
}

std::string clsBirthDetails::GetMilitaryTime(double& DecimalTime, double GMTOffset) {
  if (DecimalTime + GMTOffset < 0) DecimalTime += 24;
  if (DecimalTime + GMTOffset > 24) DecimalTime -= 24;
  const double time = std::abs(foundation::Finite(DecimalTime + GMTOffset));
  const double hours = std::floor(time);
  const double minutes = 60 * (time - hours);

  // hundreds of hours + minutes give the digits hhmm.
  const std::string digits = "0000" + NumberText(std::floor(100 * hours + minutes + 0.5));
  std::string hh = digits.substr(digits.size() - 4, 2);
  std::string mm = digits.substr(digits.size() - 2);
  if (const double sixty = foundation::LeadingNumber(mm); sixty >= 60) {
    mm = NumberText(sixty - 60);
    hh = NumberText(foundation::LeadingNumber(hh) + 1);
  }
  return hh + ":" + mm;
}

std::string clsBirthDetails::SRS(double Latitude, double Longitude, double ZoneRelativeGMT,
                                 std::string_view RiseOrSet, std::int16_t year, std::int16_t month,
                                 std::int16_t day) {
  if (std::abs(Latitude) > kHighestLatitude) return "{invalid latitude}";
  const double sign = foundation::UpperAscii(RiseOrSet) == "S" ? -1 : 1;
  const double days = DaysFromJ2000(year, month, day);
  std::string time;  // stays empty if a step fails
  foundation::Resume([&] {
    double hours = kRadToDeg * EventTime(Latitude, Longitude, sign, days, *this) / 15;
    time = GetMilitaryTime(hours, ZoneRelativeGMT);
  });
  return time;
}

}  // namespace dayperiods
