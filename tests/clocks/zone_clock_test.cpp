// Clocks of the world against what Python's zoneinfo says of the same zones, and the zones' names.

#include "clocks/zone_clock.h"

#include <algorithm>
#include <string>
#include <vector>

#include "clocks/zone_names.h"
#include "support/temporary_folder.h"
#include "support/test.h"

namespace {

using namespace std::chrono;
using clocks::CivilTime;
using clocks::Instant;
using clocks::Reading;
using clocks::ZoneClock;
using clocks::ZoneNames;
using Names = std::vector<std::string>;

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
             Row("America/New_York", 2100y / 7 / 1, std::tuple(-14400, true, "EDT")),
             Row("America/New_York", 2500y / 7 / 1, std::tuple(-14400, true, "EDT")),
             Row("Europe/London", 1970y / 1 / 1, std::tuple(3600, false, "BST")),
             Row("Europe/London", 1941y / 7 / 1, std::tuple(7200, true, "BDST")),
             Row("Asia/Kolkata", 1943y / 1 / 1, std::tuple(23400, true, "")),
             Row("Asia/Kolkata", 2026y / 1 / 1, std::tuple(19800, false, "IST")),
             Row("Asia/Kathmandu", 1985y / 12 / 30, std::tuple(19800, false, "")),
             Row("Asia/Kathmandu", 2026y / 1 / 1, std::tuple(20700, false, "")),
             Row("Australia/Lord_Howe", 2026y / 1 / 1, std::tuple(39600, true, "")),
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
  for (const seconds utc : {5h + 30min, 6h + 30min}) {
    EXPECT_EQ(Clock("America/New_York").CivilAt(Utc(2026y / 11 / 1, utc)),
              Civil(2026y / 11 / 1, 1h + 30min));
  }
}

// In Santiago the clocks went from 24:00 to 01:00, in Toronto from 23:30 to 00:30; Samoa had no 30
// December 2011.
TEST(ZoneClock, ADateBeginsAlsoWithoutAMidnight) {
  const auto begin = [](const char* zone, year_month_day date) {
    return std::tuple(Clock(zone).BeginOf(local_days(date)), Clock(zone).HasDate(local_days(date)));
  };
  ExpectRows(
      begin,
      Row("Asia/Kolkata", 2026y / 11 / 8, std::tuple(Utc(2026y / 11 / 7, 18h + 30min), true)),
      Row("America/Santiago", 2026y / 9 / 6, std::tuple(Utc(2026y / 9 / 6, 4h), true)),
      Row("America/Toronto", 1919y / 3 / 31, std::tuple(Utc(1919y / 3 / 31, 4h + 30min), true)),
      Row("Pacific/Apia", 2011y / 12 / 30, std::tuple(Utc(2011y / 12 / 30, 10h), false)),
      Row("Pacific/Apia", 2011y / 12 / 31, std::tuple(Utc(2011y / 12 / 30, 10h), true)));
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

TEST(ZoneNames, AreListedZonesAndLinksThatHaveAFile) {
  const support::TemporaryFolder folder;
  for (const char* zone : {"Asia/Kolkata", "Asia/Calcutta", "Etc/GMT+5", "GMT/BST", "EST"}) {
    folder.Write(zone, "TZif");
  }
  EXPECT_EQ(ZoneNames(folder.path), Names{"UTC"});
  folder.Write("zone.tab",
               "#code\tcoordinates\tAsia/Calcutta\n"
               "IN\t+2232+08822\tAsia/Kolkata\tthe only one\n");
  EXPECT_EQ(ZoneNames(folder.path), (Names{"Asia/Kolkata", "UTC"}));
  folder.Write("tzdata.zi",
               "# version 2025b\n"
               "Z Asia/Kolkata 5:53:28 - LMT 1854 Jun 28\n"
               "5:53:20 - GMT/BST 1870\n"
               "Z Asia/Ujjain 5 - LMT\n"
               "Z EST -5 - EST\n"
               "Z Etc/GMT+5 -5 - -05\n"
               "L Asia/Kolkata Asia/Calcutta\n");
  EXPECT_EQ(ZoneNames(folder.path), (Names{"Asia/Calcutta", "Asia/Kolkata", "UTC"}));
}

TEST(ZoneNames, OfTheSystemAreZonesThatItKnows) {
  const Names names = ZoneNames();
  EXPECT_GT(names.size(), 400U);
  EXPECT_EQ(std::ranges::count(names, "America/Indiana/Indianapolis"), 1);
  for (const auto& name : names) EXPECT_TRUE(ZoneClock::Named(name)) << name;
}

}  // namespace
