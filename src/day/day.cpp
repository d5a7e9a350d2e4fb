#include "day/day.h"

#include <cmath>
#include <cstdlib>

#include "day/sun_times.h"
#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "dayperiods/weekday_segments.h"
#include "foundation/error.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"

namespace day {
namespace {

using atlas::Place;
using std::chrono::hours;
using std::chrono::local_days;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr auto kMostDifference = minutes(5);
constexpr double kSecondsPerHour = 3600;

// One civil date on a clock that keeps the offset of its noon: the clock by which the solar series
// reckons, and from which hours are turned into instants.
class NoonClock {
 public:
  NoonClock(const clocks::ZoneClock& clock, local_days date)
      : noon_(clock.NoonOf(date)), east_(clock.OffsetAt(noon_).east) {}

  Instant Noon() const { return noon_; }

  // The zone in hours, to the minute of arc that a meridian is given in.
  double ZoneHours() const {
    const double arcMinutes = std::nearbyint(static_cast<double>(east_.count()) / 4);
    const double degrees = std::trunc(arcMinutes / 60);
    return ((arcMinutes - 60 * degrees) / 60 + degrees) / 15;
  }

  Instant At(double decimalHours) const {
    return Midnight() +
           seconds(static_cast<std::int64_t>(foundation::SecondsOfHours(decimalHours)));
  }
  double HoursOf(Instant instant) const {
    return static_cast<double>((instant - Midnight()).count()) / kSecondsPerHour;
  }

 private:
  Instant Midnight() const { return noon_ - hours(12); }

  Instant noon_;
  seconds east_;
};

// Decimal hours by the noon clock.
struct Daylight {
  std::optional<double> rise, set;
  bool up = false;
};

std::optional<Daylight> BySeries(const Place& place, const NoonClock& clock,
                                 std::chrono::year_month_day date) {
  std::optional<Daylight> daylight;
  foundation::Resume([&] {
    double latitude = place.latitude, longitude = place.longitude, zone = clock.ZoneHours();
    auto day = static_cast<std::int16_t>(static_cast<unsigned>(date.day()));
    auto month = static_cast<std::int16_t>(static_cast<unsigned>(date.month()));
    auto year = static_cast<std::int16_t>(static_cast<int>(date.year()));
    std::int16_t hour = 12, minute = 0, second = 0;
    const auto sun = dayperiods::clsBirthDetails().Sunrise(latitude, longitude, zone, day, month,
                                                           year, hour, minute, second);
    daylight = {sun.clockRise, sun.clockSet, true};
  });
  return daylight;
}

bool IsNear(Instant a, std::optional<Instant> b) {
  return b && std::chrono::abs(a - *b) <= kMostDifference;
}

Daylight DaylightOf(const Place& place, const NoonClock& clock, local_days date) {
  const SunTimes sky = SunTimesNear(clock.Noon(), place.latitude, place.longitude);
  const auto series = BySeries(place, clock, std::chrono::year_month_day(date));
  if (series && IsNear(clock.At(*series->rise), sky.rise) &&
      IsNear(clock.At(*series->set), sky.set)) {
    return *series;
  }
  const auto inHours = [&](std::optional<Instant> instant) -> std::optional<double> {
    if (!instant) return std::nullopt;
    return clock.HoursOf(*instant);
  };
  return {inHours(sky.rise), inHours(sky.set), sky.up};
}

std::optional<Instant> RiseOf(const Place& place, const clocks::ZoneClock& clock, local_days date) {
  const NoonClock noon(clock, date);
  const auto rise = DaylightOf(place, noon, date).rise;
  if (!rise) return std::nullopt;
  return noon.At(*rise);
}

std::vector<Instant> PartsOf(const dayperiods::DaylightSegments& daylight, const NoonClock& clock) {
  std::vector<Instant> parts;
  for (int part = 1; part <= dayperiods::kSegmentsOfDaylight + 1; ++part) {
    parts.push_back(clock.At(daylight.Boundary(part)));
  }
  return parts;
}

int PartOf(PeriodKind kind, int weekday) {
  switch (kind) {
    case PeriodKind::Durvela:
      return dayperiods::DurvelaSegment(weekday);
    case PeriodKind::Gulik:
      return dayperiods::GulikSegment(weekday);
    default:
      return dayperiods::YumSegment(weekday);
  }
}

}  // namespace

int WeekdayOf(local_days date) {
  return static_cast<int>(std::chrono::weekday(date).c_encoding()) + 1;
}

std::optional<Period> PeriodOn(const Day& day, PeriodKind kind, int weekday) {
  if (day.parts.empty()) return std::nullopt;
  const int part = PartOf(kind, weekday);
  const auto end = static_cast<std::size_t>(part);
  return Period{kind, part, day.parts[end - 1], day.parts[end]};
}

Day DayOf(const Place& place, const clocks::ZoneClock& clock, local_days date) {
  const int year = static_cast<int>(std::chrono::year_month_day(date).year());
  if (year < 100 || year > 9999) throw foundation::Error(foundation::ErrorKind::InvalidCall);

  const NoonClock noon(clock, date);
  const auto [rise, set, up] = DaylightOf(place, noon, date);
  Day day = {.date = date, .weekday = WeekdayOf(date), .sun = {}, .parts = {}, .periods = {}};
  if (rise) day.sun.rise = noon.At(*rise);
  if (set) day.sun.set = noon.At(*set);
  if (!rise && !set) day.sun.state = up ? Sun::State::PolarDay : Sun::State::PolarNight;
  local_days next = date + std::chrono::days(1);
  if (!clock.HasDate(next)) next += std::chrono::days(1);
  day.sun.nextRise = RiseOf(place, clock, next);
  if (rise && set) {
    day.parts =
        PartsOf({*rise, (*set - *rise) / dayperiods::kSegmentsOfDaylight, day.weekday}, noon);
    for (const PeriodKind kind : {PeriodKind::Durvela, PeriodKind::Gulik, PeriodKind::Yum}) {
      day.periods.push_back(*PeriodOn(day, kind, day.weekday));
    }
  }
  return day;
}

}  // namespace day
