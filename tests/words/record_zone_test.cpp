// Offsets by the rules as published: America changes on 8 March and 1 November 2026, Britain on 29
// March and 25 October.
#include "words/record_zone.h"

#include <gtest/gtest.h>

#include "support/table.h"
#include "words/sun_text.h"

namespace {

using namespace std::chrono;
using support::ExpectRows;
using support::Row;

TEST(RecordZone, IsTheClocksAtNoon) {
  const auto texts = [](const char* zone, year_month_day date) {
    foundation::SessionRecord record;
    words::SetRecordZone(record, *clocks::ZoneClock::Named(zone), local_days(date));
    return record.ZoneMeridianText + " " + record.ZoneTimeText;
  };
  ExpectRows(texts, Row("America/New_York", 2026y / 3 / 7, "75.00W +5"),
             Row("America/New_York", 2026y / 3 / 8, "60.00W +4"),
             Row("America/New_York", 2026y / 10 / 31, "60.00W +4"),
             Row("America/New_York", 2026y / 11 / 1, "75.00W +5"),
             Row("Europe/London", 2026y / 3 / 28, "0.00E 0"),
             Row("Europe/London", 2026y / 3 / 29, "15.00E -1"),
             Row("Europe/London", 2026y / 10 / 25, "0.00E 0"),
             Row("Asia/Kathmandu", 2026y / 7 / 1, "86.15E -5.45"),
             Row("Pacific/Kiritimati", 2026y / 7 / 1, "210.00E -14"),
             // 4:53:08 of longitude before July 1937, in whole minutes.
             Row("Europe/Amsterdam", 1930y / 1 / 1, "4.53E -0.20"));
}

TEST(SunText, SaysWhyThereIsNoSunrise) {
  using State = day::Sun::State;
  ExpectRows(words::NoSunText, Row(State::PolarDay, "The sun does not set"),
             Row(State::PolarNight, "The sun does not rise"), Row(State::Rises, ""));
  ExpectRows(words::NoSunDaysText, Row(0, 0, ""), Row(1, 0, "No sunset on 1 day"),
             Row(0, 2, "No sunrise on 2 days"),
             Row(70, 60, "No sunset on 70 days, no sunrise on 60 days"));
}

}  // namespace
