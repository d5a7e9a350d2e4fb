#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "dayperiods/weekday_segments.h"
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

TEST(Range, BringsAnglesIntoOneTurn) {
  EXPECT_NEAR(clsBirthDetails().GetRange(-1), 5.283185307179586, 1e-12);
  EXPECT_NEAR(clsBirthDetails().GetRange(20), 1.1504440784612413, 1e-12);
}

TEST(RiseSet, TakesDegreesAndMinutesWithTheirHemisphere) {
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
  // Sunrise of 5 March 2011 in Delhi is 06:43 by the NOAA formulas as well.
  const auto sunriseAt = [](double hour, double minute, double second) {
    const foundation::SessionTable session = support::Delhi();
    const DaylightSegments day = clsUtilities(session).SegmentsOf(5, 3, 2011, hour, minute, second);
    EXPECT_EQ(day.weekday, 7);  // of the calendar date, before sunrise too
    return day.sunrise;
  };
  const double own = sunriseAt(6, 43, 0);
  EXPECT_DOUBLE_EQ(own, 6 + 43 / 60.0);
  EXPECT_DOUBLE_EQ(sunriseAt(6, 42, 59), 6 + 44 / 60.0);  // of the day before
}

TEST(HinduDay, FailsWhereTheSunDoesNotCrossTheHorizon) {
  EXPECT_ERROR(InvalidCall, SunriseOf(70, 21, 6, 2011, 12, 0, 0));
  EXPECT_ERROR(InvalidCall, SunriseOf(-70, 21, 12, 2011, 12, 0, 0));
  EXPECT_EQ(SunriseOf(64, 21, 6, 2011, 12, 0, 0).clockRise, 0);
}

TEST(Periods, RefuseWhatIsNoDateOrTime) {
  foundation::SessionTable session = support::Delhi();
  clsUtilities periods(session);
  EXPECT_ERROR(TypeMismatch, periods.CalcDurvela(30, 2, 2011, 12, 0, 0));
  EXPECT_ERROR(TypeMismatch, periods.CalcDurvela(5, 3, 2011, 24, 0, 0));
  EXPECT_ERROR(InvalidCall, periods.CalcGulikYum(5, 13, 2011, 12, 0, 0));
  EXPECT_EQ(periods.DurvelaStart, "");
  session.CurrentRecord = 1001;
  EXPECT_ERROR(Subscript, periods.CalcDurvela(5, 3, 2011, 12, 0, 0));
}

// The traditional table, Sunday first: Durvela, Gulika, Yamaghantaka.
TEST(WeekdaySegments, FollowTheTradition) {
  const auto segments = [](int weekday) {
    return std::tuple(DurvelaSegment(weekday), GulikSegment(weekday), YumSegment(weekday));
  };
  ExpectRows(segments, Row(1, std::tuple(8, 7, 5)), Row(2, std::tuple(2, 6, 4)),
             Row(3, std::tuple(7, 5, 3)), Row(4, std::tuple(5, 4, 2)), Row(5, std::tuple(6, 3, 8)),
             Row(6, std::tuple(4, 2, 7)), Row(7, std::tuple(3, 8, 6)));
  EXPECT_ERROR(Subscript, DurvelaSegment(8));
  EXPECT_ERROR(Subscript, GulikSegment(0));
  const std::array<std::string_view, 8> kThursday = {"JUPITER", "VENUS", "SATURN",  "SUN",
                                                     "MOON",    "MARS",  "MERCURY", "JUPITER"};
  EXPECT_EQ(SegmentLords(5), kThursday);
}

}  // namespace
}  // namespace dayperiods
