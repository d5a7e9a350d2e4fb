#include "dayperiods/weekday_segments.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace dayperiods {
namespace {

// The traditional table, Sunday first.
TEST(WeekdaySegments, FollowTheTradition) {
  const struct {
    int durvela, gulik, yum;
  } kWeek[] = {{8, 7, 5}, {2, 6, 4}, {7, 5, 3}, {5, 4, 2}, {6, 3, 8}, {4, 2, 7}, {3, 8, 6}};
  for (int weekday = 1; weekday <= 7; ++weekday) {
    EXPECT_EQ(DurvelaSegment(weekday), kWeek[weekday - 1].durvela) << weekday;
    EXPECT_EQ(GulikSegment(weekday), kWeek[weekday - 1].gulik) << weekday;
    EXPECT_EQ(YumSegment(weekday), kWeek[weekday - 1].yum) << weekday;
  }
}

TEST(WeekdaySegments, AreRuledFromTheDaysOwnPlanetAndBackToIt) {
  const std::array<std::string_view, 8> kThursday = {"JUPITER", "VENUS", "SATURN",  "SUN",
                                                     "MOON",    "MARS",  "MERCURY", "JUPITER"};
  EXPECT_EQ(SegmentLords(5), kThursday);
}

TEST(WeekdaySegments, RefuseAWeekdayOutsideTheWeek) {
  EXPECT_ERROR(Subscript, DurvelaSegment(8));
  EXPECT_ERROR(Subscript, GulikSegment(0));
}

}  // namespace
}  // namespace dayperiods
