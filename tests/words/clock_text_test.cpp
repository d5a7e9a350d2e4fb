// Offsets by the rules as published: America changes on 8 March and 1 November 2026.
#include "words/clock_text.h"

#include "engine/place_decoding.h"
#include "support/test.h"
#include "words/record_zone.h"
#include "words/sun_text.h"

namespace {

using namespace std::chrono;
using clocks::ZoneClock;

TEST(ClockText, NamesOffsets) {
  ExpectRows([](auto... offset) { return words::ClockName({offset...}); },
             Row(0h, false, "", "UTC"), Row(0h, false, "UTC", "UTC"),
             Row(-4h, true, "EDT", "EDT, UTC-4"), Row(345min, false, "", "UTC+5:45"),
             Row(-210min, false, "", "UTC-3:30"), Row(1172s, false, "", "UTC+0:19:32"));
}

TEST(ClockText, MomentsCarryTheOffsetOfTheirClock) {
  const auto text = [](const char* zone, year_month_day date, seconds utc) {
    return words::MomentText(*ZoneClock::Named(zone), sys_days(date) + utc);
  };
  ExpectRows(text, Row("America/New_York", 2026y / 7 / 1, 12h, "2026-07-01T08:00:00-04:00"),
             Row("Asia/Kolkata", 2026y / 7 / 1, 20h, "2026-07-02T01:30:00+05:30"),
             Row("UTC", 900y / 1 / 2, 3s, "0900-01-02T00:00:03+00:00"),
             // 12:19:32 by the clock of Amsterdam
             Row("Europe/Amsterdam", 1930y / 1 / 1, 12h, "1930-01-01T12:19:00+00:19"));
}

TEST(ClockText, RecordsHoldMeridianAndHoursOfTheNoon) {
  const auto texts = [](const char* zone, year_month_day date) {
    foundation::SessionRecord record;
    words::SetRecordZone(record, *ZoneClock::Named(zone), local_days(date));
    return record.ZoneMeridianText + " " + record.ZoneTimeText;
  };
  ExpectRows(texts, Row("America/New_York", 2026y / 3 / 7, "75.00W +5"),
             Row("America/New_York", 2026y / 3 / 8, "60.00W +4"),
             Row("America/New_York", 2026y / 11 / 1, "75.00W +5"),
             Row("America/St_Johns", 2026y / 1 / 1, "52.30W +3.30"),
             Row("Europe/London", 2026y / 10 / 25, "0.00E 0"),
             Row("Asia/Kathmandu", 2026y / 7 / 1, "86.15E -5.45"),
             // 4:53:08 of longitude before July 1937, in whole minutes.
             Row("Europe/Amsterdam", 1930y / 1 / 1, "4.53E -0.20"));
  // Read back as charts do, every offset comes within two seconds.
  for (seconds east(-12h); east <= 14h; east += 61s) {
    const double hours = engine::ZoneDegrees(words::MeridianText(east)) / 15;
    EXPECT_NEAR(hours * 3600, static_cast<double>(east.count()), 2.001);
  }
}

TEST(SunText, CountsTheDaysWithoutASun) {
  ExpectRows(words::NoSunDaysText, Row(0, 0, ""), Row(1, 0, "No sunset on 1 day"),
             Row(0, 2, "No sunrise on 2 days"),
             Row(70, 60, "No sunset on 70 days, no sunrise on 60 days"));
}

}  // namespace
