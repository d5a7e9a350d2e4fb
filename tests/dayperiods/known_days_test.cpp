// Whole days worked out independently of this code: sunrise, sunset and the three periods.

#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "engine/clsPP.h"
#include "support/session_at.h"

namespace dayperiods {
namespace {

struct KnownDay {
  struct {
    std::int16_t day, month, year, hour, minute, second;
  } moment;
  struct {
    const char *latitude, *longitude, *zone;
  } place;
  struct {
    double localMeanRise, localMeanSet, clockRise, clockSet;
    const char* date;
  } rows;
  std::int16_t dayAfter;   // what Sunrise makes of its day
  const char *rise, *set;  // SRS of the Hindu day's date
  struct {
    const char *durvelaStart, *durvelaEnd, *gulikStart, *gulikEnd, *yumStart, *yumEnd;
  } periods;
};

// Summer days whose rise and set come exchanged, moments before sunrise that keep them so, months'
// and years' firsts, times on exact half seconds, "18:0", "24:0", and latitudes beyond 63 degrees.
const KnownDay kDays[] = {
#include "dayperiods/known_days.inc"
};

std::string Name(const KnownDay& day) {
  return std::string(day.rows.date) + " at " + day.place.latitude + " " + day.place.longitude;
}

engine::clsPP PlaceOf(const KnownDay& day) {
  engine::clsPP pp;
  pp.GenHoro(day.moment.day, day.moment.month, day.moment.year, day.moment.hour, day.moment.minute,
             day.moment.second, day.place.longitude, day.place.latitude, day.place.zone, 0,
             foundation::kTrue16, 0);
  return pp;
}

TEST(KnownDays, HaveTheirSunrise) {
  for (const KnownDay& day : kDays) {
    SCOPED_TRACE(Name(day));
    engine::clsPP place = PlaceOf(day);
    auto moment = day.moment;
    const SunriseRows rows = clsBirthDetails().Sunrise(
        place.ppLatitude, place.ppLongitude, place.ppZoneHours, moment.day, moment.month,
        moment.year, moment.hour, moment.minute, moment.second);
    EXPECT_DOUBLE_EQ(rows.localMeanRise, day.rows.localMeanRise);
    EXPECT_DOUBLE_EQ(rows.localMeanSet, day.rows.localMeanSet);
    EXPECT_DOUBLE_EQ(rows.clockRise, day.rows.clockRise);
    EXPECT_DOUBLE_EQ(rows.clockSet, day.rows.clockSet);
    EXPECT_EQ(rows.date, day.rows.date);
    EXPECT_EQ(moment.day, day.dayAfter);
    EXPECT_EQ(moment.month, day.moment.month);
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
    clsUtilities periods(session);
    periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
    periods.CalcGulikYum(at.day, at.month, at.year, at.hour, at.minute, at.second);
    EXPECT_EQ(periods.DurvelaStart, day.periods.durvelaStart);
    EXPECT_EQ(periods.DurvelaEnd, day.periods.durvelaEnd);
    EXPECT_EQ(periods.GulikStart, day.periods.gulikStart);
    EXPECT_EQ(periods.GulikEnd, day.periods.gulikEnd);
    EXPECT_EQ(periods.YumStart, day.periods.yumStart);
    EXPECT_EQ(periods.YumEnd, day.periods.yumEnd);
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
    engine::clsPP place;
    place.GenHoro(day.day, day.month, day.year, 12, 0, 0, day.longitude, day.latitude, day.zone, 0,
                  foundation::kTrue16, 0);
    std::int16_t nDay = day.day, nMonth = day.month, nYear = day.year;
    std::int16_t nHour = 12, nMin = 0, nSec = 0;
    const SunriseRows rows =
        clsBirthDetails().Sunrise(place.ppLatitude, place.ppLongitude, place.ppZoneHours, nDay,
                                  nMonth, nYear, nHour, nMin, nSec);
    EXPECT_NEAR(rows.clockRise, day.rise, 1 / 60.0) << rows.date << " " << day.latitude;
    EXPECT_NEAR(rows.clockSet, day.set, 1 / 60.0) << rows.date << " " << day.latitude;
  }
}

}  // namespace
}  // namespace dayperiods
