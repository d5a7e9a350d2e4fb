// Days by the places' clocks. The times are PyEphem's (4.1.4, horizon -0:50, pressure 0,
// use_center).
#include "day/day.h"

#include <cmath>

#include "day/sun_times.h"
#include "foundation/time_text.h"
#include "support/test.h"

namespace {

using namespace std::chrono;
using atlas::Place;
using clocks::ZoneClock;
using day::Day;

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

TEST(Day, PeriodsAreTheEighthsOfTheDaylight) {
  using day::PeriodKind;
  const auto periodOn = [](year_month_day date, PeriodKind kind, int weekday) {
    const auto period = day::PeriodOn(DayAt(kDelhi, date), kind, weekday).value();
    return std::to_string(period.part) + " " + ClockText(kDelhi, period.begin) + " " +
           ClockText(kDelhi, period.end);
  };
  ExpectRows(periodOn,
             // A Monday worked out independently; some of the boundaries fall on half a second.
             Row(2011y / 1 / 10, PeriodKind::Durvela, 2, "2 08:33:23 09:51:45"),
             Row(2011y / 1 / 10, PeriodKind::Gulik, 2, "6 13:46:53 15:05:15"),
             Row(2011y / 1 / 10, PeriodKind::Yum, 2, "4 11:10:08 12:28:30"),
             // Friday's light by the rule of Saturday: the third of the eighths of 06:44 to 18:23.
             Row(2011y / 3 / 4, PeriodKind::Durvela, 7, "3 09:38:45 11:06:07"));
  EXPECT_FALSE(day::PeriodOn(DayAt(kTromso, 2026y / 6 / 21), PeriodKind::Yum, 1));
}

TEST(Day, FollowsThePlacesClock) {
  const auto sunAt = [](const Place& place, year_month_day date) {
    const day::Sun sun = DayAt(place, date).sun;
    return ClockText(place, sun.rise) + " " + ClockText(place, sun.set) + " " +
           ClockText(place, sun.nextRise);
  };
  ExpectRows(sunAt, Row(kNewYork, 2026y / 7 / 1, "05:29:00 20:31:00 05:29:00"),
             // The night of the change: the next rise is by the other hour.
             Row(kNewYork, 2026y / 10 / 31, "07:25:00 17:53:00 06:26:00"));
}

TEST(Day, BeyondThePolarCircleTheSunMayNotRise) {
  using State = day::Sun::State;
  ExpectRows([](year_month_day date) { return DayAt(kTromso, date).sun.state; },
             Row(2026y / 6 / 21, State::PolarDay), Row(2026y / 12 / 21, State::PolarNight),
             Row(2026y / 5 / 17, State::Rises));
  // Of the last night before the midnight sun of 2026 the sun sets after midnight.
  const day::Sun may = DayAt(kTromso, 2026y / 5 / 17).sun;
  EXPECT_GT(*may.set, *may.rise + 22h);
}

// Samoa had no 30 December 2011.
TEST(Day, EndsAtTheSunriseOfTheNextDateThatThereIs) {
  const Place apia = {"Apia", "", "Samoa", -13 - 50 / 60.0, -171 - 46 / 60.0, "Pacific/Apia"};
  EXPECT_EQ(DayAt(apia, 2011y / 12 / 29).sun.nextRise, DayAt(apia, 2011y / 12 / 31).sun.rise);
}

// Seconds since 1970, in Universal Time; 0 for none.
TEST(SunTimes, AgreeWithAnEphemerisFromTheEquatorToTheArctic) {
  const auto secondsOf = [](std::optional<day::Instant> instant) {
    return static_cast<double>(instant.value_or(day::Instant()).time_since_epoch().count());
  };
  const struct {
    const char* place;
    double latitude, longitude;
    month_day date;  // of 2026
    double rise, set, tolerance;
  } kKnown[] = {
      {"Delhi", 28.6667, 77.2167, January / 15, 1768441504, 1768479363, 15},
      {"Sydney", -33.8833, 151.2, July / 15, 1784062697, 1784099056, 15},
      {"Reykjavik", 64.15, -21.95, January / 15, 1768474499, 1768494004, 15},
      {"Reykjavik", 64.15, -21.95, July / 15, 1784086858, 1784157858, 15},
      {"Quito", -0.2167, -78.5, July / 15, 1784114207, 1784157797, 15},
      {"Apia", -13.8333, -171.7667, January / 15, 1768497067, 1768543321, 15},
      {"Uusikaupunki", 60.8, 21.4167, July / 15, 1784078998, 1784144953, 15},
      // The Sun grazes the horizon, and stays up.
      {"Tromso", 69.65, 18.95, January / 15, 1768472982, 1768475891, 60},
      {"Tromso", 69.65, 18.95, July / 15, 0, 0, 0},
  };
  for (const auto& [place, latitude, longitude, date, rise, set, tolerance] : kKnown) {
    const auto noon = sys_days(2026y / date) + seconds(std::lround(43200 - longitude * 240));
    const auto sun = day::SunTimesNear(noon, latitude, longitude);
    EXPECT_NEAR(secondsOf(sun.rise), rise, tolerance) << place;
    EXPECT_NEAR(secondsOf(sun.set), set, tolerance) << place;
  }
}

}  // namespace
