#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "foundation/resume.h"
#include "support/errors.h"
#include "support/session_at.h"
#include "support/table.h"

namespace dayperiods {
namespace {

using Number = std::int16_t;
using support::Row;

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
  const auto text = [&](const char* latitude, const char* longitude, bool decimal) {
    return std::get<std::string>(
        details.GetRISESET(5, 3, 2011, "R", latitude, longitude, 5.5, false, decimal));
  };
  EXPECT_EQ(text("28.40N", "77.13E", false), text("28.666666666666668", "77.21666666666667", true));
  for (const auto& [latitude, longitude] : {std::pair("28.40S", "77.13w"), {"28.40s", "77.13W"}}) {
    EXPECT_EQ(text(latitude, longitude, false),
              text("-28.666666666666668", "-77.21666666666667", true));
  }
  EXPECT_EQ(text("63.01", "0", true), "{invalid latitude}");
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
  const auto crosses = [](double latitude, double date) {
    const auto [year, month, day, hour, minute, second] = foundation::FieldsOf(date);
    const auto field = [](int number) { return static_cast<Number>(number); };
    return foundation::Resume(
        [&] { SunriseOf(latitude, field(day), field(month), field(year), 12, 0, 0); });
  };
  for (const auto& [latitude, first, last] : {
           std::tuple(70.0, foundation::DateFromParts(2011, 5, 21),
                      foundation::DateFromParts(2011, 7, 23)),
           {75.0, foundation::DateFromParts(1987, 11, 4), foundation::DateFromParts(1988, 2, 8)},
           {-67.5, foundation::DateFromParts(2012, 12, 6), foundation::DateFromParts(2013, 1, 5)},
       }) {
    SCOPED_TRACE(latitude);
    EXPECT_TRUE(crosses(latitude, first - 1) && crosses(latitude, last + 1));
    EXPECT_FALSE(crosses(latitude, first) || crosses(latitude, last));
  }
  // The circle itself, at 66.562 degrees.
  const double solstice = foundation::DateFromParts(2011, 6, 21);
  ExpectRows(crosses, Row(66.55, solstice, true), Row(66.57, solstice, false),
             Row(-66.55, solstice, true), Row(-66.57, solstice, false));
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
