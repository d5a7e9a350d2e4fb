// Clocks of the world against what Python's zoneinfo says of the same zones.

#include "clocks/zone_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "support/table.h"

namespace {

using namespace std::chrono;
using clocks::CivilTime;
using clocks::Instant;
using clocks::Reading;
using clocks::ZoneClock;
using support::Row;

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
  // datetime(..., tzinfo=UTC).astimezone(ZoneInfo(zone)): utcoffset, dst, tzname; at midnight in
  // Universal Time
  const auto offset = [](const char* zone, year_month_day date) {
    const ZoneClock clock = Clock(zone);
    const auto found = clock.OffsetAt(Utc(date));
    EXPECT_EQ(clock.CivilAt(Utc(date)), Civil(date, found.east));
    return std::tuple(found.east / 1s, found.daylightSaving, found.letters);
  };
  ExpectRows(offset, Row("America/New_York", 2026y / 7 / 1, std::tuple(-14400, true, "EDT")),
             Row("America/New_York", 2026y / 11 / 23, std::tuple(-18000, false, "EST")),
             Row("America/New_York", 2500y / 7 / 1, std::tuple(-14400, true, "EDT")),
             Row("Europe/London", 1970y / 1 / 1, std::tuple(3600, false, "BST")),
             Row("Europe/London", 1941y / 7 / 1, std::tuple(7200, true, "BDST")),
             Row("Asia/Kolkata", 1943y / 1 / 1, std::tuple(23400, true, "")),
             Row("Asia/Kolkata", 2026y / 1 / 1, std::tuple(19800, false, "IST")),
             Row("Asia/Kathmandu", 1985y / 12 / 30, std::tuple(19800, false, "")),
             Row("Europe/Amsterdam", 1930y / 1 / 1, std::tuple(1172, false, "AMT")));
}

TEST(ZoneClock, ATimeMayBeSkippedOrComeTwice) {
  using Kind = Reading::Kind;
  // The instants as times of the same date in Universal Time.
  const auto read = [](year_month_day date, seconds time) {
    const Reading reading = Clock("America/New_York").Read(Civil(date, time));
    return std::tuple(reading.kind, reading.earlier - Utc(date), reading.later - Utc(date));
  };
  ExpectRows(read,
             Row(2026y / 3 / 8, 2h + 30min, std::tuple(Kind::Skipped, 6h + 30min, 7h + 30min)),
             Row(2026y / 11 / 1, 1h + 30min, std::tuple(Kind::Repeated, 5h + 30min, 6h + 30min)));
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
  const auto change = Clock("America/New_York").NextChange(Utc(2026y / 6 / 1)).value();
  EXPECT_EQ(std::tuple(change.at, change.before, change.after),
            std::tuple(Utc(2026y / 11 / 1, 6h), -4h, -5h));
  // On 14 August 1945 only the letters changed, from "EWT" to "EPT".
  EXPECT_EQ(Clock("America/New_York").NextChange(Utc(1945y / 8 / 1))->at, Utc(1945y / 9 / 30, 6h));
  EXPECT_FALSE(Clock("Asia/Kolkata").NextChange(Utc(1950y / 1 / 1)));
  EXPECT_FALSE(ZoneClock::Fixed(-5h).NextChange(Utc(1950y / 1 / 1)));
}

TEST(ZoneClock, AnUnknownZoneIsNone) {
  for (const char* name : {"Asia/Ujjain", "", "localtime", "/etc/localtime", "Asia/../localtime",
                           "Fixed/UTC+05:30:00"}) {
    EXPECT_FALSE(ZoneClock::Named(name)) << name;
  }
}

}  // namespace
