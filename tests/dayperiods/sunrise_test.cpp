#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
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
  EXPECT_EQ(text("28.40s", "77.13w", false),
            text("-28.666666666666668", "-77.21666666666667", true));
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

TEST(HinduDay, FailsIfTheSunDoesNotCrossTheHorizon) {
  EXPECT_ERROR(InvalidCall, SunriseOf(70, 21, 6, 2011, 12, 0, 0));
  EXPECT_EQ(SunriseOf(64, 21, 6, 2011, 12, 0, 0).clockRise, 0);
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
