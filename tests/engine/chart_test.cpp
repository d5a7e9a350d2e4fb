// Charts from place and moment: decoding, nodes, ayanamsa modes and their peculiarities.

#include <cmath>

#include "engine/ayanamsa.h"
#include "engine/clsPP.h"
#include "engine/nodes.h"
#include "engine/place_decoding.h"
#include "engine/time_base.h"
#include "support/test.h"

namespace engine {
namespace {

using foundation::DateFromParts;

// With the mean node.
clsPP ChartOf(double day, double month, double year, double hour, std::int32_t mode = 0) {
  clsPP pp;
  pp.GenHoro(day, month, year, hour, 0, 0, "77.13E", "28.40N", "0.0E", mode, 0, 0);
  return pp;
}

TEST(PlaceDecoding, ReadsLatitudes) {
  const auto latitude = [](auto text) { return DecimalDegrees(LatitudeParts(text), "S"); };
  ExpectRows(latitude, Row("28.40S", -28.666666666666668), Row("28.00N", 28),
             Row("28.05N", 28 + 5 / 60.0), Row("0.13S", -13 / 60.0), Row("", 0));
  // Without a letter at the end, the last digit is repeated.
  ExpectRows(latitude, Row("28.40", 34.666666666666664));
}

TEST(PlaceDecoding, ReadsLongitudes) {
  const auto longitude = [](auto text) { return DecimalDegrees(LongitudeParts(text), "W"); };
  ExpectRows(longitude, Row("77.05E", 77.08333333333333), Row("77.10E", 77 + 10 / 60.0),
             Row("74.01W", -74.01666666666667), Row("77E13", 77.21666666666667));
  // Whole degrees lose their point and letter, and are read as minutes east.
  ExpectRows(longitude, Row("77.00E", 1.2833333333333334), Row("77.00W", 1.2833333333333334));
}

TEST(PlaceDecoding, ReadsZones) {
  ExpectRows(ZoneDegrees, Row("52.30E", 52.5), Row("75.0W", -75), Row("no zone", 0));
}

TEST(Charts, KeepThePlaceAndRoundTheMoment) {
  clsPP pp;
  pp.GenHoro(4.5, 2.5, 2011.5, 5.5, 12.4, 9.5, "77.13E", "28.40N", "82.30E", 0, -1, 0.5);
  EXPECT_EQ(pp.ppLongitudeText + pp.ppLatitudeText + pp.ppZoneText, "77.13E28.40N82.30E");
  EXPECT_EQ(std::tuple(pp.ppZoneDegrees, pp.ppStdLongitude, pp.ppZoneHours),
            std::tuple(82.5, 82.5, 5.5));
  EXPECT_EQ(std::tuple(pp.ppDay, pp.ppMonth, pp.ppYear, pp.ppHour, pp.ppMin, pp.ppSec),
            std::tuple(4, 2, 2012, 6, 12, 9.5));
  EXPECT_ERROR(Overflow, pp.GenHoro(1, 1, 2011, 32768, 0, 0, "", "", "", 0, 0, 0));
}

TEST(CorrectedNode, FollowsItsTables) {
  const auto minutes = [](double sun, int month, int day) {
    return std::round((CalcNode(100, sun, DateFromParts(2011, month, day)) - 100) * 60e7) / 1e7;
  };
  // Both tables at 0; the middle of the quadrant; between rows 0 and 1, and from the other end; the
  // next quadrant; 80 degrees behind the node.
  ExpectRows(minutes, Row(100, 1, 3, 0), Row(145, 1, 3, 98), Row(146.5, 1, 3, 98),
             Row(101.5, 1, 3, 5), Row(188.5, 1, 3, 5), Row(191.5, 1, 3, -5),
             Row(20, 1, 3, -33.3333333));
  // Midway from the row of the year before, and to that of the year after.
  ExpectRows(minutes, Row(100, 1, 1, 0.3333333), Row(100, 12, 31, 0.5), Row(100, 3, 11, -8.5));
  // The Sun's anomaly swings it by 9 minutes, after Meeus' Astronomical Algorithms.
  for (int day = 0; day < 365; ++day) {
    const double q = 60 * (CalcNode(100, 100, DateFromParts(2011, 1, 1) + day) - 100);
    EXPECT_NEAR(q, -9 * std::sin((day - 2) * 2 * M_PI / 365.26), 0.8) << day;
  }
  // A sum below 0 is folded, not wrapped.
  EXPECT_NEAR(CalcNode(0.05, 0.05, DateFromParts(2011, 3, 29)), 0.1, 1e-9);
  EXPECT_ERROR(Subscript, CalcNode(10, 190, DateFromParts(2011, 3, 5)));
  for (const int year : {100, 9999}) {
    EXPECT_ERROR(TypeMismatch, CalcNode(100, 100, DateFromParts(year, 3, 5)));
  }
}

TEST(AyanamsaModes, ReadTheirRows) {
  for (const int missing : {8, 9}) EXPECT_ERROR(Subscript, ChartOf(5, 3, 2011, 6, missing));
}

TEST(Houses, StartAt90AtTheEquator) {
  EXPECT_EQ(AscendantAt(0, 0, {23.45, 24}), 90);  // ayanamsa not subtracted
}

// Each call adds the mode's shift to the unused slot of a reused object.
TEST(Positions, AccumulateShiftsInTheUnusedSlot) {
  clsPP pp;
  for (const int calls : {1, 2}) {
    pp.GenHoro(5, 3, 2011, 6, 0, 0, "77.13E", "28.40N", "0.0E", 4, 0, 0);
    const double shift = CalcAyanamsa(DateFromParts(2011, 3, 5)) - pp.pp_AYAN;
    EXPECT_NEAR(pp.pp_14, calls * shift, 1e-12);
  }
}

TEST(Motion, ComparesOneHourWithoutWrapping) {
  // The Sun is at 359.71 at 0:30 and reaches 0 some seven hours later.
  const auto motion = [](double hour) { return ChartOf(14, 4, 2011, hour).getRET(1); };
  ExpectRows(motion, Row(5, " "), Row(7, "RET"), Row(9, " "));
}

TEST(Charts, CountDaysOfTheGregorianCalendar) {
  // Julian Days of these midnights less 1720994.5.
  ExpectRows(DayNumber, Row(31, 12, 1899, 694025), Row(1, 1, 2000, 730550),
             Row(29, 2, 1600, 584512), Row(1, 3, 1700, 621037), Row(28, 2, 2100, 767133),
             Row(1, 3, 2100, 767134), Row(1, 1, 100, 36590), Row(31, 12, 9999, 3652489));
}

TEST(Charts, RejectInvalidDates) {
  EXPECT_ERROR(TypeMismatch, ChartOf(31, 4, 2011, 6));
  EXPECT_ERROR(InvalidCall, ChartOf(1, 13, 2011, 6));
  EXPECT_EQ(CivilDate(5, 3, 99), DateFromParts(1999, 3, 5));
}

}  // namespace
}  // namespace engine
