#include "words/clock_text.h"

#include <gtest/gtest.h>

#include "engine/place_decoding.h"
#include "support/table.h"

namespace {

using namespace std::chrono;
using clocks::Instant;
using clocks::ZoneClock;
using support::ExpectRows;
using support::Row;

TEST(ClockText, NamesOffsets) {
  const auto plain = [](seconds east) { return words::ClockName({east, false, ""}); };
  ExpectRows(plain, Row(0h, "UTC"), Row(-4h, "UTC-4"), Row(345min, "UTC+5:45"),
             Row(-210min, "UTC-3:30"), Row(seconds(1172), "UTC+0:19:32"));
  EXPECT_EQ(words::ClockName({-4h, true, "EDT"}), "EDT, UTC-4");
  EXPECT_EQ(words::ClockName({0h, false, "UTC"}), "UTC");
}

TEST(ClockText, MomentsCarryTheOffsetOfTheirClock) {
  const Instant noon = sys_days(2026y / 7 / 1) + 12h;
  const auto text = [&](const char* zone, Instant instant) {
    return words::MomentText(*ZoneClock::Named(zone), instant);
  };
  ExpectRows(text, Row("America/New_York", noon, "2026-07-01T08:00:00-04:00"),
             Row("Asia/Kolkata", noon + 8h, "2026-07-02T01:30:00+05:30"),
             Row("UTC", sys_days(900y / 1 / 2) + 3s, "0900-01-02T00:00:03+00:00"),
             // 12:19:32 by the clock of Amsterdam
             Row("Europe/Amsterdam", sys_days(1930y / 1 / 1) + 12h, "1930-01-01T12:19:00+00:19"));
}

TEST(ClockText, TimesOfDayAreByTheClock) {
  const Instant midnight = sys_days(2026y / 7 / 1);
  const auto text = [&](const char* zone) {
    return words::TimeText(*ZoneClock::Named(zone), midnight - 1s);
  };
  ExpectRows(text, Row("UTC", "23:59:59"), Row("Asia/Kathmandu", "05:44:59"),
             Row("America/New_York", "19:59:59"), Row("Pacific/Kiritimati", "13:59:59"));
}

TEST(ClockText, RecordsHoldMeridianAndHours) {
  ExpectRows(words::MeridianText, Row(-4h, "60.00W"), Row(330min, "82.30E"), Row(0h, "0.00E"),
             Row(seconds(1172), "4.53E"), Row(-210min, "52.30W"));
  ExpectRows(words::ZoneText, Row(-4h, "+4"), Row(330min, "-5.30"), Row(0h, "0"),
             Row(seconds(1172), "-0.20"));
  // Read back as charts do, every offset comes within two seconds.
  for (seconds east(-12h); east <= 14h; east += 61s) {
    const double hours = engine::ZoneDegrees(words::MeridianText(east)) / 15;
    EXPECT_NEAR(hours * 3600, static_cast<double>(east.count()), 2.001);
  }
}

}  // namespace
