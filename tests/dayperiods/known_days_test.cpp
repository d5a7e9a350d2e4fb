// Days calculated independently of this code: sunrise, sunset and the three periods.

#include <gtest/gtest.h>

#include <array>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "support/session_at.h"

namespace dayperiods {
namespace {

struct Place {
  const char *latitude, *longitude, *zone;
};

struct KnownDay {
  std::array<std::int16_t, 6> moment;  // day first
  Place place;
  SunriseRows rows;
  std::int16_t dayAfter;           // the day as Sunrise leaves it
  std::array<std::string, 2> sun;  // SRS on the Hindu day's date
  std::array<std::string, 6> periods;
};

// Summer days whose rise and set come out swapped, moments before sunrise where that remains, first
// days of months and years, times at exact half seconds, "18:0", "24:0", and latitudes beyond 63
// degrees.
const KnownDay kDays[] = {
#include "dayperiods/known_days.inc"
};

engine::clsPP ChartAt(const Place& place) {
  engine::clsPP pp;
  pp.GenHoro(1, 1, 2011, 12, 0, 0, place.longitude, place.latitude, place.zone, 0, -1, 0);
  return pp;
}

TEST(KnownDays, HaveTheirSunriseAndTimeTexts) {
  clsBirthDetails details;
  for (const KnownDay& known : kDays) {
    SCOPED_TRACE(known.rows.date + " at " + known.place.latitude + " " + known.place.longitude);
    engine::clsPP at = ChartAt(known.place);
    auto [day, month, year, hour, minute, second] = known.moment;
    const SunriseRows rows = details.Sunrise(at.ppLatitude, at.ppLongitude, at.ppZoneHours, day,
                                             month, year, hour, minute, second);
    EXPECT_DOUBLE_EQ(rows.localMeanRise, known.rows.localMeanRise);
    EXPECT_DOUBLE_EQ(rows.localMeanSet, known.rows.localMeanSet);
    EXPECT_DOUBLE_EQ(rows.clockRise, known.rows.clockRise);
    EXPECT_DOUBLE_EQ(rows.clockSet, known.rows.clockSet);
    EXPECT_EQ(rows.date, known.rows.date);
    EXPECT_EQ(day, known.dayAfter);
    if (day == 0) continue;  // the Hindu day's date is in the previous month
    const auto [latitude, longitude, zone] =
        std::tuple(at.ppLatitude, at.ppLongitude, at.ppZoneHours);
    EXPECT_EQ((std::array{details.SRS(latitude, longitude, zone, "R", year, month, day),
                          details.SRS(latitude, longitude, zone, "s", year, month, day)}),
              known.sun);
  }
}

TEST(KnownDays, HaveTheirPeriods) {
  for (const auto& [moment, place, rows, dayAfter, sun, periods] : kDays) {
    SCOPED_TRACE(rows.date + " at " + place.latitude + " " + place.longitude);
    const auto session = support::SessionAt(place.latitude, place.longitude, place.zone);
    const auto& [day, month, year, hour, minute, second] = moment;
    clsUtilities of(session);
    of.CalcDurvela(day, month, year, hour, minute, second);
    of.CalcGulikYum(day, month, year, hour, minute, second);
    EXPECT_EQ((std::array{of.DurvelaStart, of.DurvelaEnd, of.GulikStart, of.GulikEnd, of.YumStart,
                          of.YumEnd}),
              periods);
  }
}

// Ordinary days by the formulas of the NOAA solar calculator (see noaa_times.py).
TEST(OrdinaryDays, MatchThePublishedFormulasToTheMinute) {
  const struct {
    int day, month, year;
    Place place;
    double rise, set;
  } kOrdinaryDays[] = {
#include "dayperiods/ordinary_days.inc"
  };
  for (const auto& [day, month, year, place, rise, set] : kOrdinaryDays) {
    const SunriseRows rows = SunriseAt(ChartAt(place), {year, month, day, 12, 0, 0});
    EXPECT_NEAR(rows.clockRise, rise, 1 / 60.0) << rows.date << " " << place.latitude;
    EXPECT_NEAR(rows.clockSet, set, 1 / 60.0) << rows.date << " " << place.latitude;
  }
}

}  // namespace
}  // namespace dayperiods
