#include <gtest/gtest.h>

#include <cmath>

#include "engine/angles.h"
#include "engine/ayanamsa.h"
#include "engine/clsPP.h"
#include "engine/nodes.h"
#include "engine/orbit.h"
#include "engine/time_base.h"
#include "support/errors.h"
#include "support/table.h"

namespace engine {
namespace {

using foundation::DateFromParts;
using foundation::kFalse16;
using foundation::kTrue16;
using support::Row;

clsPP ChartOf(double day, double month, double year, double hour, std::int32_t mode,
              foundation::Boolean16 correctedNode = kFalse16) {
  clsPP pp;
  pp.GenHoro(day, month, year, hour, 0, 0, "77.13E", "28.40N", "0.0E", mode, correctedNode, 0);
  return pp;
}

TEST(TimeBase, CountsDays) {
  // Julian Days at midnight, worked by hand, less 1720994.5.
  ExpectRows(DayNumber, Row(31, 12, 1899, 694025), Row(1, 1, 1900, 694026), Row(1, 1, 2000, 730550),
             Row(29, 2, 2000, 730609), Row(1, 3, 2000, 730610), Row(15, 10, 1582, 578166),
             Row(14, 10, 1582, 578165));
  const TimeBase noon = TimeBaseOf(DayNumber(31, 12, 1899), 17.5, 5.5, 0);
  EXPECT_EQ(noon.DayPart, 0);
  EXPECT_EQ(noon.TimeT, 0);
  EXPECT_EQ(TimeBaseOf(694025, 17.5, 5.5, -1).DayPart, -1 / 24.0);
  EXPECT_EQ(FracPart(-0.25), 0.75);
}

TEST(Orbit, IsAnEllipse) {
  SunPlace sun;
  for (const double L : {0.0, 45.0, 133.0, 200.0, 300.0, 359.0}) {
    EXPECT_NEAR(OrbitLongitude({L, 20, 0, 0, 0, 1}, Sun, sun), L, 1e-9);  // of a circle
  }
  EXPECT_ERROR(InvalidCall, OrbitLongitude({10, 20, 0, 1.5, 0, 1}, Sun, sun));
}

TEST(CorrectedNode, FollowsItsTables) {
  const auto minutes = [](double sun, int month, int day) {
    return std::round((CalcNode(100, sun, DateFromParts(2011, month, day)) - 100) * 60e7) / 1e7;
  };
  // Both tables at 0; the middle of the quadrant; between rows 0 and 1, and back from the end; the
  // next quadrant; 80 degrees behind.
  ExpectRows(minutes, Row(100, 1, 3, 0), Row(145, 1, 3, 98), Row(146.5, 1, 3, 98),
             Row(101.5, 1, 3, 5), Row(188.5, 1, 3, 5), Row(191.5, 1, 3, -5),
             Row(20, 1, 3, -33.3333333));
  // From the row of the year before, to that of the year after, midway.
  ExpectRows(minutes, Row(100, 1, 1, 0.3333333), Row(100, 12, 31, 0.5), Row(100, 3, 11, -8.5));
  // A sum below 0 is folded, not wrapped.
  EXPECT_NEAR(CalcNode(0.05, 0.05, DateFromParts(2011, 3, 29)), 0.1, 1e-9);
  EXPECT_ERROR(Subscript, CalcNode(10, 100, DateFromParts(2011, 3, 5)));
  EXPECT_ERROR(Subscript, CalcNode(10, 190, DateFromParts(2011, 3, 5)));  // half a turn likewise
  EXPECT_ERROR(TypeMismatch, CalcNode(100, 100, DateFromParts(100, 3, 5)));
  EXPECT_ERROR(TypeMismatch, CalcNode(100, 100, DateFromParts(9999, 3, 5)));
}

// In seconds of arc; the whole charts have all bodies.
TEST(AyanamsaModes, CorrectTheBodies) {
  const auto corrected = [](foundation::Boolean16 node, int place) {
    const Positions plain = ChartOf(5, 3, 2011, 6, 10, node).getPLNT();
    const double shift = ChartOf(5, 3, 2011, 6, 0, node).getPLNT()[place] - plain[place];
    return std::round(3600e6 * shift) / 1e6;
  };
  ExpectRows(corrected, Row(kFalse16, Saturn, 48), Row(kFalse16, Saturn + kHourLater, 108),
             Row(kFalse16, Rahu, 5), Row(kFalse16, Rahu + kHourLater, 65), Row(kFalse16, Ketu, 5),
             Row(kFalse16, Ketu + kHourLater, 5), Row(kTrue16, Rahu, 1045),
             Row(kTrue16, Ketu + kHourLater, 1045));
}

TEST(AyanamsaModes, ReadTheirRows) {
  EXPECT_NEAR(CalcAyanamsa(DateFromParts(2006, 9, 1)), 23.9502777777778 - 17 / 3600.0, 1e-12);
  EXPECT_EQ(AyanamsaAt(0, DateFromParts(2006, 9, 1)), 23.9502777778);
  EXPECT_ERROR(Subscript, ChartOf(5, 3, 2011, 6, 8));
  EXPECT_ERROR(Subscript, ChartOf(5, 3, 2011, 6, 9));
  EXPECT_EQ(ChartOf(5, 3, 2011, 6, -1).pp_Sun, ChartOf(5, 3, 2011, 6, 10).pp_Sun);
}

TEST(Houses, OfTheEquator) {
  EXPECT_EQ(AscendantAt(0, 0, {23.45, 24}), 90);  // with no ayanamsa off
  EXPECT_NEAR(AscendantAt(6, 0, {23.45, 24}), 156, 1e-9);
  EXPECT_NEAR(AscendantAt(12, 0, {23.45, 24}), 246, 1e-9);
  EXPECT_NEAR(AscendantAt(18, 0, {23.45, 0}), 0, 1e-9);
}

// What a mode adds to no body's slot gathers in an object that is used again.
TEST(Positions, GatherShiftsInTheEmptySlot) {
  clsPP pp;
  const auto reckon = [&] {
    pp.GenHoro(5, 3, 2011, 6, 0, 0, "77.13E", "28.40N", "0.0E", 4, kFalse16, 0);
    return pp.pp_14;
  };
  const double once = reckon();
  EXPECT_NEAR(once, CalcAyanamsa(DateFromParts(2011, 3, 5)) - pp.pp_AYAN, 1e-12);
  EXPECT_NEAR(reckon(), 2 * once, 1e-12);
}

TEST(Motion, IsThatOfOneHourWithoutTheWrap) {
  // The Sun stands at 359.71 at 0:30 and comes to 0 some seven hours later.
  const auto motion = [](double hour) {
    return std::string(ChartOf(14, 4, 2011, hour, 0).getRET(1));
  };
  ExpectRows(motion, Row(5, " "), Row(7, "RET"), Row(9, " "));
  EXPECT_ERROR(Subscript, ChartOf(14, 4, 2011, 9, 0).getRET(13));
}

TEST(Charts, NeedDates) {
  EXPECT_ERROR(TypeMismatch, ChartOf(31, 4, 2011, 6, 0));
  EXPECT_ERROR(TypeMismatch, ChartOf(29, 2, 2011, 6, 0));
  EXPECT_ERROR(TypeMismatch, ChartOf(1, 1, 10000, 6, 0));
  EXPECT_ERROR(InvalidCall, ChartOf(1, 13, 2011, 6, 0));
  EXPECT_EQ(ChartOf(31, 12, 9999, 6, 0).ppYear, 9999);
  EXPECT_EQ(CivilDate(5, 3, 99), DateFromParts(1999, 3, 5));
  EXPECT_EQ(CivilDate(29, 2, 2012), DateFromParts(2012, 2, 29));
}

}  // namespace
}  // namespace engine
