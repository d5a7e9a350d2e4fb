// Clocks of the world against what Python's zoneinfo says of the same zones.

#include "clocks/zone_clock.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::chrono;
using clocks::CivilTime;
using clocks::Instant;
using clocks::Reading;
using clocks::ZoneClock;

Instant Utc(year_month_day date, seconds time = {}) {
  return Instant(sys_days(date)) + time;
}

CivilTime Civil(year_month_day date, seconds time = {}) {
  return CivilTime(local_days(date)) + time;
}

ZoneClock Clock(const std::string& zone) {
  return ZoneClock::Named(zone).value();
}

TEST(ZoneClock, OffsetsFollowHistoryAndTheRulesToCome) {
  // datetime(..., tzinfo=UTC).astimezone(ZoneInfo(zone)): utcoffset, dst, tzname
  const struct {
    const char* zone;
    year_month_day date;  // its midnight in Universal Time
    int east;             // seconds
    bool daylightSaving;
    const char* letters;
  } kOffsets[] = {
      {"America/New_York", 2026y / 7 / 1, -14400, true, "EDT"},
      {"America/New_York", 2026y / 11 / 23, -18000, false, "EST"},
      {"America/New_York", 2100y / 7 / 1, -14400, true, "EDT"},
      {"America/New_York", 2500y / 7 / 1, -14400, true, "EDT"},
      {"Europe/London", 1970y / 1 / 1, 3600, false, "BST"},
      {"Europe/London", 1941y / 7 / 1, 7200, true, "BDST"},
      {"Asia/Kolkata", 1943y / 1 / 1, 23400, true, ""},
      {"Asia/Kolkata", 2026y / 1 / 1, 19800, false, "IST"},
      {"Asia/Kathmandu", 1985y / 12 / 30, 19800, false, ""},
      {"Asia/Kathmandu", 2026y / 1 / 1, 20700, false, ""},
      {"Australia/Lord_Howe", 2026y / 1 / 1, 39600, true, ""},
      {"Europe/Amsterdam", 1930y / 1 / 1, 1172, false, "AMT"},
  };
  for (const auto& row : kOffsets) {
    const auto offset = Clock(row.zone).OffsetAt(Utc(row.date));
    EXPECT_EQ(offset.east, seconds(row.east)) << row.zone;
    EXPECT_EQ(offset.daylightSaving, row.daylightSaving) << row.zone;
    EXPECT_EQ(offset.letters, row.letters) << row.zone;
  }
}

TEST(ZoneClock, ATimeMayBeSkippedOrComeTwice) {
  const ZoneClock newYork = Clock("America/New_York");
  const auto spring = newYork.Read(Civil(2026y / 3 / 8, 2h + 30min));
  EXPECT_EQ(spring.kind, Reading::Kind::Skipped);
  EXPECT_EQ(spring.earlier, Utc(2026y / 3 / 8, 6h + 30min));
  EXPECT_EQ(spring.later, Utc(2026y / 3 / 8, 7h + 30min));
  const auto autumn = newYork.Read(Civil(2026y / 11 / 1, 1h + 30min));
  EXPECT_EQ(autumn.kind, Reading::Kind::Repeated);
  EXPECT_EQ(autumn.earlier, Utc(2026y / 11 / 1, 5h + 30min));
  EXPECT_EQ(autumn.later, Utc(2026y / 11 / 1, 6h + 30min));
  for (const Instant instant : {autumn.earlier, autumn.later}) {
    EXPECT_EQ(newYork.CivilAt(instant), Civil(2026y / 11 / 1, 1h + 30min));
  }
}

TEST(ZoneClock, ADateBeginsAlsoWithoutAMidnight) {
  EXPECT_EQ(Clock("Asia/Kolkata").BeginOf(local_days(2026y / 11 / 8)),
            Utc(2026y / 11 / 7, 18h + 30min));
  // In Santiago the clocks went from 24:00 to 01:00.
  EXPECT_EQ(Clock("America/Santiago").BeginOf(local_days(2026y / 9 / 6)), Utc(2026y / 9 / 6, 4h));
  // Samoa had no 30 December 2011.
  EXPECT_EQ(Clock("Pacific/Apia").BeginOf(local_days(2011y / 12 / 30)), Utc(2011y / 12 / 30, 10h));
  EXPECT_FALSE(Clock("Pacific/Apia").HasDate(local_days(2011y / 12 / 30)));
  EXPECT_TRUE(Clock("Pacific/Apia").HasDate(local_days(2011y / 12 / 31)));
  EXPECT_TRUE(Clock("America/Santiago").HasDate(local_days(2026y / 9 / 6)));
}

TEST(ZoneClock, ChangesAreThoseOfTheOffset) {
  const auto change = Clock("America/New_York").NextChange(Utc(2026y / 6 / 1));
  ASSERT_TRUE(change);
  EXPECT_EQ(change->at, Utc(2026y / 11 / 1, 6h));
  EXPECT_EQ(change->before, -4h);
  EXPECT_EQ(change->after, -5h);
  // On 14 August 1945 only the letters changed, from "EWT" to "EPT".
  EXPECT_EQ(Clock("America/New_York").NextChange(Utc(1945y / 8 / 1))->at, Utc(1945y / 9 / 30, 6h));
  EXPECT_FALSE(Clock("Asia/Kolkata").NextChange(Utc(1950y / 1 / 1)));
  EXPECT_FALSE(ZoneClock::Fixed(-5h).NextChange(Utc(1950y / 1 / 1)));
}

TEST(ZoneClock, AnUnknownZoneIsNone) {
  EXPECT_FALSE(ZoneClock::Named("Asia/Ujjain"));
  EXPECT_FALSE(ZoneClock::Named(""));
}

}  // namespace
