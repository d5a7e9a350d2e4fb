// Every day of 1900 to 2100 through the periods of five places, held against what must be so of any
// day: the shares of daylight, the table of weekdays, and the sun's course to some minutes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "nightly/days.h"
#include "support/session_at.h"

namespace nightly {
namespace {

struct Place {
  const char *latitude, *longitude, *meridian;
  double degreesNorth, degreesEast, zone;
  double minutesADay;  // that sunrise may move by from one day to the next, its rounding included
  double minutesOff;   // of the length of the day by a declination that is a plain cosine
};

constexpr Place kPlaces[] = {
    {"28.40N", "77.13E", "82.30E", 28 + 40 / 60.0, 77 + 13 / 60.0, 5.5, 3, 16},  // Delhi
    {"0.13S", "78.30W", "75.0W", -13 / 60.0, -78.5, -5, 2, 12},                  // Quito
    {"33.52S", "151.13E", "150.0E", -33 - 52 / 60.0, 151 + 13 / 60.0, 10, 3, 18},
    {"54.48S", "68.18W", "45.0W", -54.8, -68.3, -3, 4, 28},  // Ushuaia
    {"62.30N", "6.09E", "15.0E", 62.5, 6.15, 1, 6, 50},      // Ålesund's coast
};

// The sun passes 90 degrees of hour angle between a rise and a set, so that one of the two is 12
// hours wrong without the other, and stays so.
constexpr struct {
  const char* latitude;
  int year, month, day;
} kOddDays[] = {{"33.52S", 2067, 3, 24}, {"54.48S", 2091, 3, 22}};

// Parts of daylight by weekday, Sunday first.
constexpr int kDurvela[] = {8, 2, 7, 5, 6, 4, 3};
constexpr int kGulik[] = {7, 6, 5, 4, 3, 2, 8};
constexpr int kYum[] = {5, 4, 3, 2, 8, 7, 6};

int Seconds(const std::string& text) {
  EXPECT_EQ(text.size(), 8U) << text;
  return std::stoi(text) * 3600 + std::stoi(text.substr(3)) * 60 + std::stoi(text.substr(6));
}

// Hours of daylight, the sun's rim and refraction counted in.
double DaylightHours(const Place& place, const Day& day) {
  constexpr double kDegree = std::numbers::pi / 180;
  const double season = 2 * std::numbers::pi * (day.serial - 36515.0) / 365.2422;  // 21 Dec 1999
  const double declination = -23.44 * kDegree * std::cos(season);
  const double latitude = place.degreesNorth * kDegree;
  const double cosine = (std::sin(-0.833 * kDegree) - std::sin(latitude) * std::sin(declination)) /
                        (std::cos(latitude) * std::cos(declination));
  return std::acos(cosine) / kDegree / 7.5;
}

class PlaceSweep {
 public:
  explicit PlaceSweep(const Place& place)
      : place_(place),
        session_(support::SessionAt(place.latitude, place.longitude, place.meridian)) {}

  void Check(const Day& day) {
    const auto [rise, set] = SunOf(day);
    if (IsOdd(day)) {
      EXPECT_GT(std::abs(set - rise - DaylightHours(place_, day)), 11);
      riseBefore_ = 0;
      return;
    }
    CheckSun(day, rise, set);
    dayperiods::clsUtilities periods(session_);
    periods.CalcDurvela(day.day, day.month, day.year, 12, 30, 0);
    periods.CalcGulikYum(day.day, day.month, day.year, 12, 30, 0);
    const double part = (set - rise) * 3600 / 8;
    const auto checkPeriod = [&](const std::string& start, const std::string& end, auto numbers) {
      const int number = numbers[day.weekday - 1];
      EXPECT_LT(start, end);
      EXPECT_NEAR(Seconds(start), rise * 3600 + (number - 1) * part, 0.51);
      EXPECT_NEAR(Seconds(end), rise * 3600 + number * part, 0.51);
    };
    checkPeriod(periods.DurvelaStart, periods.DurvelaEnd, kDurvela);
    checkPeriod(periods.GulikStart, periods.GulikEnd, kGulik);
    checkPeriod(periods.YumStart, periods.YumEnd, kYum);
  }

 private:
  struct Sun {
    double rise, set;
  };

  bool IsOdd(const Day& day) const {
    return std::any_of(std::begin(kOddDays), std::end(kOddDays), [&](const auto& odd) {
      return odd.latitude == std::string_view(place_.latitude) && odd.year == day.year &&
             odd.month == day.month && odd.day == day.day;
    });
  }

  Sun SunOf(const Day& day) const {
    double latitude = place_.degreesNorth, longitude = place_.degreesEast, zone = place_.zone;
    auto nDay = static_cast<std::int16_t>(day.day), nMonth = static_cast<std::int16_t>(day.month),
         nYear = static_cast<std::int16_t>(day.year);
    std::int16_t nHour = 12, nMin = 30, nSec = 0;
    const dayperiods::SunriseRows rows = dayperiods::clsBirthDetails().Sunrise(
        latitude, longitude, zone, nDay, nMonth, nYear, nHour, nMin, nSec);
    return {rows.clockRise, rows.clockSet};
  }

  void CheckSun(const Day& day, double rise, double set) {
    constexpr double kEquationOfTime = 17;  // minutes, at most
    const double noon = 12 + place_.zone - place_.degreesEast / 15;
    EXPECT_NEAR((rise + set) / 2, noon, (kEquationOfTime + 1) / 60);
    EXPECT_NEAR(set - rise, DaylightHours(place_, day), place_.minutesOff / 60);
    if (riseBefore_ > 0) {
      EXPECT_NEAR(rise, riseBefore_, place_.minutesADay / 60 + 1e-9);
    }
    riseBefore_ = rise;
  }

  const Place& place_;
  const foundation::SessionTable session_;
  double riseBefore_ = 0;
};

TEST(EveryDayOf1900To2100, HasItsPeriodsInItsDaylight) {
  for (const Place& place : kPlaces) {
    PlaceSweep sweep(place);
    for (Day day = kFirstOf1900; day.year <= 2100 && !HasFailure(); day.Advance()) {
      SCOPED_TRACE(testing::Message()
                   << place.latitude << " " << day.day << "/" << day.month << "/" << day.year);
      sweep.Check(day);
    }
  }
}

}  // namespace
}  // namespace nightly
