// Checks the periods of five places on every day of 1900 to 2100 against what must hold on any day:
// equal parts of daylight, the weekday table, and the sun's course to within minutes.

#include <cmath>
#include <numbers>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "engine/record_chart.h"
#include "foundation/time_text.h"
#include "nightly/days.h"
#include "support/session_at.h"

namespace dayperiods {
namespace {

struct Place {
  const char *latitude, *longitude, *meridian;
  double degreesNorth, degreesEast, zone;
  double minutesADay;  // most that sunrise may move from day to day, with rounding
  double minutesOff;   // tolerance of daylight from a plain cosine declination
  // The day on which the sun passes 90 degrees of hour angle between rise and set, so that only one
  // of the two is 12 hours off and stays so: 24 March 2067 in Sydney, 22 March 2091 in Ushuaia.
  int oddDay = 0;
};

constexpr Place kPlaces[] = {
    {"28.40N", "77.13E", "82.30E", 28 + 40 / 60.0, 77 + 13 / 60.0, 5.5, 3, 16},           // Delhi
    {"0.13S", "78.30W", "75.0W", -13 / 60.0, -78.5, -5, 2, 12},                           // Quito
    {"33.52S", "151.13E", "150.0E", -33 - 52 / 60.0, 151 + 13 / 60.0, 10, 3, 18, 61080},  // Sydney
    {"54.48S", "68.18W", "45.0W", -54.8, -68.3, -3, 4, 28, 69844},                        // Ushuaia
    {"62.30N", "6.09E", "15.0E", 62.5, 6.15, 1, 6, 50},  // Ålesund's coast
};

// Allows for the sun's upper limb and refraction.
double DaylightHours(const Place& place, const nightly::Day& day) {
  constexpr double kDegree = std::numbers::pi / 180;
  const double season = 2 * std::numbers::pi * (day.serial - 36515.0) / 365.2422;  // 21 Dec 1999
  const double declination = -23.44 * kDegree * std::cos(season);
  const double latitude = place.degreesNorth * kDegree;
  const double cosine = (std::sin(-0.833 * kDegree) - std::sin(latitude) * std::sin(declination)) /
                        (std::cos(latitude) * std::cos(declination));
  return std::acos(cosine) / kDegree / 7.5;
}

void ExpectPeriods(const clsUtilities& of, const DaylightSegments& light) {
  const struct {
    const std::string &start, &end;
    int parts[7];  // of daylight by weekday, Sunday first
  } periods[] = {{of.DurvelaStart, of.DurvelaEnd, {8, 2, 7, 5, 6, 4, 3}},
                 {of.GulikStart, of.GulikEnd, {7, 6, 5, 4, 3, 2, 8}},
                 {of.YumStart, of.YumEnd, {5, 4, 3, 2, 8, 7, 6}}};
  for (const auto& [start, end, parts] : periods) {
    const double from = light.sunrise + (parts[light.weekday - 1] - 1) * light.segment;
    EXPECT_LT(start, end);
    EXPECT_NEAR(foundation::TimeTextToDecimal(start), from, 0.51 / 3600);
    EXPECT_NEAR(foundation::TimeTextToDecimal(end), from + light.segment, 0.51 / 3600);
  }
}

TEST(EveryDayOf1900To2100, HasItsPeriodsInItsDaylight) {
  for (const Place& place : kPlaces) {
    SCOPED_TRACE(place.latitude);
    const auto session = support::SessionAt(place.latitude, place.longitude, place.meridian);
    engine::clsPP there;
    engine::GenRecordHoro(there, session.Current(), {1900, 1, 1, 12, 0, 0});
    const double noon = 12 + place.zone - place.degreesEast / 15;
    double riseBefore = 0;
    nightly::EachDay(1900, 2100, [&](const nightly::Day& day) {
      clsUtilities of(session);
      const auto sun = SunriseAt(there, {day.year, day.month, day.day, 12, 30, 0});
      const double hours = sun.clockSet - sun.clockRise, hoursByCosine = DaylightHours(place, day);
      if (day.serial == place.oddDay) {
        EXPECT_GT(std::abs(hours - hoursByCosine), 11);
        riseBefore = 0;
        return;
      }
      EXPECT_NEAR(hours, hoursByCosine, place.minutesOff / 60);
      EXPECT_NEAR(sun.clockRise + hours / 2, noon, 18 / 60.0);  // by the equation of time
      if (riseBefore > 0) {
        EXPECT_NEAR(sun.clockRise, riseBefore, place.minutesADay / 60 + 1e-9);
      }
      riseBefore = sun.clockRise;
      of.CalcDurvela(day.day, day.month, day.year, 12, 30, 0);
      of.CalcGulikYum(day.day, day.month, day.year, 12, 30, 0);
      ExpectPeriods(of, {sun.clockRise, hours / 8, day.weekday});
    });
  }
}

}  // namespace
}  // namespace dayperiods
