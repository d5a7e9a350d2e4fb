// Sunrise, sunset and the three periods: days calculated independently of this code, and limits.

#include <array>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "engine/record_chart.h"
#include "foundation/resume.h"
#include "support/session_at.h"
#include "support/test.h"

namespace dayperiods {
namespace {

using Number = std::int16_t;

struct KnownDay {
  std::array<Number, 6> moment;  // day first
  struct {
    const char *latitude, *longitude, *zone;
  } place;
  SunriseRows rows;
  Number dayAfter;                 // the day as Sunrise leaves it
  std::array<std::string, 2> sun;  // SRS on the Hindu day's date
  std::array<std::string, 6> periods;
};

// Summer days whose rise and set come out swapped, moments before sunrise where that remains, first
// days of months and years, times at exact half seconds, "18:0", "24:0", and latitudes of 63
// degrees and beyond.
const KnownDay kDays[] = {
#include "dayperiods/known_days.inc"
};

TEST(KnownDays, MatchIndependentResults) {
  clsBirthDetails details;
  for (const auto& [moment, place, known, dayAfter, sun, periods] : kDays) {
    SCOPED_TRACE(known.date + " at " + place.latitude + " " + place.longitude);
    const auto session = support::SessionAt(place.latitude, place.longitude, place.zone);
    auto [day, month, year, hour, minute, second] = moment;
    clsUtilities of(session);
    of.CalcDurvela(day, month, year, hour, minute, second);
    of.CalcGulikYum(day, month, year, hour, minute, second);
    EXPECT_EQ((std::array{of.DurvelaStart, of.DurvelaEnd, of.GulikStart, of.GulikEnd, of.YumStart,
                          of.YumEnd}),
              periods);
    engine::clsPP at;
    engine::GenRecordHoro(at, session.Current(), day, month, year, hour, minute, second);
    const SunriseRows rows = details.Sunrise(at.ppLatitude, at.ppLongitude, at.ppZoneHours, day,
                                             month, year, hour, minute, second);
    EXPECT_DOUBLE_EQ(rows.localMeanRise, known.localMeanRise);
    EXPECT_DOUBLE_EQ(rows.localMeanSet, known.localMeanSet);
    EXPECT_DOUBLE_EQ(rows.clockRise, known.clockRise);
    EXPECT_DOUBLE_EQ(rows.clockSet, known.clockSet);
    EXPECT_EQ(rows.date, known.date);
    EXPECT_EQ(day, dayAfter);
    if (day == 0) continue;  // the Hindu day's date is in the previous month
    const auto [latitude, longitude, zone] =
        std::tuple(at.ppLatitude, at.ppLongitude, at.ppZoneHours);
    EXPECT_EQ((std::array{details.SRS(latitude, longitude, zone, "R", year, month, day),
                          details.SRS(latitude, longitude, zone, "s", year, month, day)}),
              sun);
  }
}

SunriseRows SunriseOf(double latitude, Number day, Number month, Number year, Number hour,
                      Number minute, Number second) {
  double longitude = 25.5, zone = 2;
  return clsBirthDetails().Sunrise(latitude, longitude, zone, day, month, year, hour, minute,
                                   second);
}

TEST(MilitaryTime, JoinsHoursAndMinutes) {
  ExpectRows(
      [](double time, double offset) { return clsBirthDetails().GetMilitaryTime(time, offset); },
      Row(1.25, 5.5, "06:45"), Row(20, 5.5, "01:30"), Row(1, -5, "20:00"), Row(18.5, 5.5, "24:00"),
      Row(5.995, 0, "6:0"), Row(23.995, 0, "24:0"), Row(18.55, 5.5, "00:03"), Row(0, 0, "00:00"));
  double written = 20;
  clsBirthDetails().GetMilitaryTime(written, 5.5);
  EXPECT_EQ(written, -4);
}

TEST(RiseSet, ReadsDegreesAndMinutesWithHemisphere) {
  clsBirthDetails details;
  const auto rise = [&](const char* latitude, const char* longitude, bool decimal) {
    return std::get<std::string>(
        details.GetRISESET(5, 3, 2011, "R", latitude, longitude, 5.5, false, decimal));
  };
  const std::string north = rise("28.666666666666668", "77.21666666666667", true);
  const std::string south = rise("-28.666666666666668", "-77.21666666666667", true);
  ExpectRows(rise, Row("28.40N", "77.13E", false, north), Row("28.40S", "77.13w", false, south),
             Row("28.40s", "77.13W", false, south), Row("63.01", "0", true, "{invalid latitude}"),
             Row("-63.01", "0", true, "{invalid latitude}"),
             // 06:53 in Greenwich, by the formulas of NOAA's solar calculator.
             Row("63", "0", true, "12:23"));
  EXPECT_EQ(std::get<double>(details.GetRISESET(5, 3, 2011, "R", "63.01", "0", 0, true, true)), 0);
}

TEST(HinduDay, BeginsAtSunriseToTheSecond) {
  // The NOAA formulas also give 06:43 for 5 March 2011 in Delhi.
  const foundation::SessionTable session = support::Delhi();
  const auto sunriseAndWeekday = [&](double minute, double second) {
    const DaylightSegments day = clsUtilities(session).SegmentsOf(5, 3, 2011, 6, minute, second);
    return std::tuple(day.sunrise, day.weekday);
  };
  // Before sunrise, the sun is that of the day before, but the weekday is today's.
  ExpectRows(sunriseAndWeekday, Row(43, 0, std::tuple(6 + 43 / 60.0, 7)),
             Row(42, 59, std::tuple(6 + 44 / 60.0, 7)));
}

// The Sun's centre, by noaa_times.py: the days round a solstice on which it stays up or down.
TEST(HinduDay, FailsIfTheSunDoesNotCrossTheHorizon) {
  const auto crosses = [](double latitude, Number day, Number month, Number year) {
    return foundation::Resume([&] { SunriseOf(latitude, day, month, year, 12, 0, 0); });
  };
  ExpectRows(crosses, Row(70, 20, 5, 2011, true), Row(70, 21, 5, 2011, false),
             Row(70, 23, 7, 2011, false), Row(70, 24, 7, 2011, true), Row(75, 3, 11, 1987, true),
             Row(75, 4, 11, 1987, false), Row(75, 8, 2, 1988, false), Row(75, 9, 2, 1988, true),
             Row(-67.5, 5, 12, 2012, true), Row(-67.5, 6, 12, 2012, false),
             Row(-67.5, 5, 1, 2013, false), Row(-67.5, 6, 1, 2013, true));
  // The circle itself, at 66.562 degrees.
  ExpectRows(crosses, Row(66.55, 21, 6, 2011, true), Row(66.57, 21, 6, 2011, false),
             Row(-66.55, 21, 6, 2011, true), Row(-66.57, 21, 6, 2011, false));
  EXPECT_ERROR(InvalidCall, SunriseOf(70, 21, 6, 2011, 12, 0, 0));
  EXPECT_EQ(SunriseOf(64, 21, 6, 2011, 12, 0, 0).clockRise, 0);
}

TEST(HinduDay, RollsOverInvalidDatesAndTimes) {
  const auto sun = [](Number day, Number month, Number hour, Number second) {
    const SunriseRows rows = SunriseOf(28.7, day, month, 2011, hour, 59, second);
    return std::tuple(rows.clockRise, rows.clockSet, rows.date);
  };
  const auto [rise, set, date] = sun(2, 3, 12, 0);
  EXPECT_EQ(sun(30, 2, 12, 0), std::tuple(rise, set, "30 February 2011"));
  EXPECT_EQ(sun(2, 3, 24, 60), std::tuple(rise, set, date));
  EXPECT_ERROR(TypeMismatch, sun(2, 3, 48, 0));
  EXPECT_ERROR(InvalidCall, sun(2, 13, 12, 0));
}

TEST(Periods, RejectInvalidDatesAndTimes) {
  foundation::SessionTable session = support::Delhi();
  clsUtilities periods(session);
  EXPECT_ERROR(TypeMismatch, periods.CalcDurvela(30, 2, 2011, 12, 0, 0));
  EXPECT_ERROR(TypeMismatch, periods.CalcDurvela(5, 3, 2011, 24, 0, 0));
  EXPECT_EQ(periods.DurvelaStart, "");
  session.CurrentRecord = 1001;
  EXPECT_ERROR(Subscript, periods.CalcDurvela(5, 3, 2011, 12, 0, 0));
}

}  // namespace
}  // namespace dayperiods
