#include "day/day.h"

#include <gtest/gtest.h>

#include "foundation/time_text.h"
#include "support/table.h"

namespace {

using namespace std::chrono;
using atlas::Place;
using clocks::ZoneClock;
using day::Day;
using support::Row;

const Place kDelhi = {"Delhi", "Delhi", "India", 28 + 40 / 60.0, 77 + 13 / 60.0, "Asia/Kolkata"};
const Place kNewYork = {"New York", "New York", "USA", 40 + 43 / 60.0, -74, "America/New_York"};
const Place kTromso = {"Tromso", "Troms", "Norway", 69 + 39 / 60.0, 18 + 57 / 60.0, "Europe/Oslo"};

Day DayAt(const Place& place, year_month_day date) {
  return day::DayOf(place, *ZoneClock::Named(place.zone), local_days(date));
}

// "07:14:00" by the place's clock.
std::string ClockText(const Place& place, std::optional<day::Instant> instant) {
  const auto civil = ZoneClock::Named(place.zone)->CivilAt(instant.value());
  const duration<double, hours::period> time = civil - floor<days>(civil);
  return foundation::DecimalToTimeText(time.count());
}

std::string DaylightAt(const Place& place, year_month_day date) {
  const day::Sun sun = DayAt(place, date).sun;
  return ClockText(place, sun.rise) + " " + ClockText(place, sun.set);
}

std::string PeriodsAt(const Place& place, year_month_day date) {
  std::string text;
  for (const day::Period& period : DayAt(place, date).periods) {
    text += std::to_string(period.part) + " " + ClockText(place, period.begin) + " " +
            ClockText(place, period.end) + "; ";
  }
  return text;
}

// Two days of a table worked out independently; several of the boundaries fall on half a second.
TEST(Day, PeriodsAreTheEighthsOfTheDaylight) {
  EXPECT_EQ(DayAt(kDelhi, 2011y / 1 / 1).weekday, 7);
  EXPECT_EQ(DaylightAt(kDelhi, 2011y / 1 / 1), "07:14:00 17:35:00");
  ExpectRows(
      PeriodsAt,
      Row(kDelhi, 2011y / 1 / 1, "3 09:49:15 11:06:52; 8 16:17:22 17:35:00; 6 13:42:07 14:59:45; "),
      Row(kDelhi, 2011y / 1 / 10,
          "2 08:33:23 09:51:45; 6 13:46:53 15:05:15; 4 11:10:08 12:28:30; "));
}

// Friday's light by the rule of Saturday: the third of the eighths of 06:44 to 18:23.
TEST(Day, HasThePeriodsOfOtherWeekdays) {
  const Day friday = DayAt(kDelhi, 2011y / 3 / 4);
  const auto durvela = day::PeriodOn(friday, day::PeriodKind::Durvela, 7);
  ASSERT_TRUE(durvela);
  EXPECT_EQ(durvela->part, 3);
  EXPECT_EQ(ClockText(kDelhi, durvela->begin), "09:38:45");
  EXPECT_EQ(ClockText(kDelhi, durvela->end), "11:06:07");
  EXPECT_EQ(day::WeekdayOf(local_days(2011y / 3 / 5)), 7);
  EXPECT_EQ(day::WeekdayOf(local_days(2011y / 3 / 6)), 1);
  EXPECT_FALSE(day::PeriodOn(DayAt(kTromso, 2026y / 6 / 21), day::PeriodKind::Yum, 1));
  EXPECT_ANY_THROW(day::PeriodOn(friday, day::PeriodKind::Gulik, 8));
}

// Times by PyEphem, to the minute.
TEST(Day, FollowsThePlacesClock) {
  ExpectRows(DaylightAt, Row(kNewYork, 2026y / 7 / 1, "05:29:00 20:31:00"),
             Row(kNewYork, 2026y / 11 / 23, "06:52:00 16:32:00"));
  // The night of the change: the next rise is by the other hour.
  const Day october = DayAt(kNewYork, 2026y / 10 / 31);
  EXPECT_EQ(ClockText(kNewYork, october.sun.rise), "07:25:00");
  EXPECT_EQ(ClockText(kNewYork, october.sun.nextRise), "06:26:00");
}

TEST(Day, BeyondThePolarCircleTheSunMayNotRise) {
  const Day june = DayAt(kTromso, 2026y / 6 / 21), december = DayAt(kTromso, 2026y / 12 / 21);
  EXPECT_EQ(june.sun.state, day::Sun::State::PolarDay);
  EXPECT_EQ(december.sun.state, day::Sun::State::PolarNight);
  for (const Day* day : {&june, &december}) {
    EXPECT_FALSE(day->sun.rise || day->sun.set || day->sun.nextRise);
    EXPECT_TRUE(day->periods.empty());
  }
  // Of the last night before the midnight sun of 2026 the sun sets after midnight.
  const Day may = DayAt(kTromso, 2026y / 5 / 17);
  EXPECT_EQ(may.sun.state, day::Sun::State::Rises);
  EXPECT_GT(*may.sun.set, *may.sun.rise + 22h);
}

// Samoa had no 30 December 2011.
TEST(Day, EndsAtTheSunriseOfTheNextDateThatThereIs) {
  const Place apia = {"Apia", "", "Samoa", -13 - 50 / 60.0, -171 - 46 / 60.0, "Pacific/Apia"};
  const Day before = DayAt(apia, 2011y / 12 / 29), after = DayAt(apia, 2011y / 12 / 31);
  EXPECT_EQ(before.sun.nextRise, after.sun.rise);
  EXPECT_LT(abs(*before.sun.nextRise - *before.sun.rise - 24h), 2min);
}

// The solar series has 24:00, and so midnight, for the rise here.
TEST(Day, TheEnginesSunStandsInWhereTheSeriesFails) {
  const Place kolpino = {"Kolpino", "", "Russia", 59 + 45 / 60.0, 30 + 36 / 60.0, "Europe/Moscow"};
  for (int date = 14; date <= 22; ++date) {
    const day::Sun sun = DayAt(kolpino, year_month_day(2026y / March / date)).sun;
    EXPECT_NEAR(duration<double>(sun.set.value() - sun.rise.value()) / 1h, 12, 0.5);
    EXPECT_LT(abs(sun.nextRise.value() - *sun.rise - 24h), 5min);
  }
}

TEST(Day, IsOfTheYears100To9999) {
  EXPECT_EQ(DayAt(kDelhi, 100y / 1 / 1).periods.size(), 3U);
  EXPECT_EQ(DayAt(kDelhi, 9999y / 12 / 30).periods.size(), 3U);
  EXPECT_ANY_THROW(DayAt(kDelhi, 99y / 12 / 31));
}

}  // namespace
