// Whole days worked out independently of this code: sunrise, sunset and the three periods.

#include <gtest/gtest.h>

#include <array>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "engine/clsPP.h"
#include "support/session_at.h"

namespace dayperiods {
namespace {

struct Moment {
  std::int16_t day, month, year, hour, minute, second;
};

struct KnownDay {
  Moment moment;
  struct {
    const char *latitude, *longitude, *zone;
  } place;
  struct {
    double localMeanRise, localMeanSet, clockRise, clockSet;
    const char* date;
  } rows;
  std::int16_t dayAfter;   // what Sunrise makes of its day
  const char *rise, *set;  // SRS of the Hindu day's date
  std::array<std::string, 6> periods;
};

// Summer days whose rise and set come exchanged, moments before sunrise that keep them so, months'
// and years' firsts, times on exact half seconds, "18:0", "24:0", and latitudes beyond 63 degrees.
const KnownDay kDays[] = {
#include "dayperiods/known_days.inc"
};

std::string Name(const KnownDay& day) {
  return std::string(day.rows.date) + " at " + day.place.latitude + " " + day.place.longitude;
}

engine::clsPP PlaceAt(const char* latitude, const char* longitude, const char* zone) {
  engine::clsPP pp;
  pp.GenHoro(1, 1, 2011, 12, 0, 0, longitude, latitude, zone, 0, foundation::kTrue16, 0);
  return pp;
}

engine::clsPP PlaceOf(const KnownDay& day) {
  return PlaceAt(day.place.latitude, day.place.longitude, day.place.zone);
}

SunriseRows SunriseOf(engine::clsPP& place, Moment& at) {
  return clsBirthDetails().Sunrise(place.ppLatitude, place.ppLongitude, place.ppZoneHours, at.day,
                                   at.month, at.year, at.hour, at.minute, at.second);
}

TEST(KnownDays, HaveTheirSunrise) {
  for (const KnownDay& day : kDays) {
    SCOPED_TRACE(Name(day));
    engine::clsPP place = PlaceOf(day);
    Moment moment = day.moment;
    const SunriseRows rows = SunriseOf(place, moment);
    EXPECT_DOUBLE_EQ(rows.localMeanRise, day.rows.localMeanRise);
    EXPECT_DOUBLE_EQ(rows.localMeanSet, day.rows.localMeanSet);
    EXPECT_DOUBLE_EQ(rows.clockRise, day.rows.clockRise);
    EXPECT_DOUBLE_EQ(rows.clockSet, day.rows.clockSet);
    EXPECT_EQ(rows.date, day.rows.date);
    EXPECT_EQ(std::tuple(moment.day, moment.month), std::tuple(day.dayAfter, day.moment.month));
  }
}

TEST(KnownDays, HaveTheirTimeTexts) {
  for (const KnownDay& day : kDays) {
    if (day.dayAfter == 0) continue;  // the Hindu day's date is in the month before
    SCOPED_TRACE(Name(day));
    const engine::clsPP place = PlaceOf(day);
    const auto text = [&](const char* riseOrSet) {
      return clsBirthDetails().SRS(place.ppLatitude, place.ppLongitude, place.ppZoneHours,
                                   riseOrSet, day.moment.year, day.moment.month, day.dayAfter);
    };
    EXPECT_EQ(text("R"), day.rise);
    EXPECT_EQ(text("s"), day.set);
  }
}

TEST(KnownDays, HaveTheirPeriods) {
  for (const KnownDay& day : kDays) {
    SCOPED_TRACE(Name(day));
    const auto session =
        support::SessionAt(day.place.latitude, day.place.longitude, day.place.zone);
    const auto& at = day.moment;
    clsUtilities of(session);
    of.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
    of.CalcGulikYum(at.day, at.month, at.year, at.hour, at.minute, at.second);
    EXPECT_EQ((std::array{of.DurvelaStart, of.DurvelaEnd, of.GulikStart, of.GulikEnd, of.YumStart,
                          of.YumEnd}),
              day.periods);
  }
}

// Ordinary days by the formulas of the NOAA solar calculator (noaa_times.py beside this file).
TEST(OrdinaryDays, AgreeWithThePublishedFormulasToTheMinute) {
  const struct {
    std::int16_t day, month, year;
    const char *latitude, *longitude, *zone;
    double rise, set;
  } kOrdinaryDays[] = {
#include "dayperiods/ordinary_days.inc"
  };
  for (const auto& day : kOrdinaryDays) {
    engine::clsPP place = PlaceAt(day.latitude, day.longitude, day.zone);
    Moment noon = {day.day, day.month, day.year, 12, 0, 0};
    const SunriseRows rows = SunriseOf(place, noon);
    EXPECT_NEAR(rows.clockRise, day.rise, 1 / 60.0) << rows.date << " " << day.latitude;
    EXPECT_NEAR(rows.clockSet, day.set, 1 / 60.0) << rows.date << " " << day.latitude;
  }
}

}  // namespace
}  // namespace dayperiods
