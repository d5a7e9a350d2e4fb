#include <array>
#include <optional>

#include "cli/day_table.h"
#include "cli/failure.h"
#include "cli/period_names.h"
#include "cli/table_text.h"
#include "foundation/locale_names.h"
#include "words/clock_changes.h"
#include "words/clock_text.h"
#include "words/sun_text.h"

namespace cli {
namespace {

using clocks::Instant;
using std::chrono::days;

struct Columns {
  std::string date, rise, set;
  std::array<std::string, 3> periods;  // in the order of their kinds
  std::string clock;
};

// Short enough for 80 columns.
std::string RowOf(const Columns& columns) {
  std::string line = Padded(columns.date, 16) + Padded(columns.rise, 9) + Padded(columns.set, 9);
  for (const std::string& period : columns.periods) line += Padded(period, 13);
  return Line(line + columns.clock);
}

// The instant whose time by the clock is the nearest whole minute.
Instant NearestMinute(const clocks::ZoneClock& clock, Instant instant) {
  const clocks::CivilTime time = clock.CivilAt(instant);
  return instant +
         (std::chrono::floor<std::chrono::minutes>(time + std::chrono::seconds(30)) - time);
}

// "16:53", without the seconds.
std::string MinuteText(const clocks::ZoneClock& clock, Instant instant) {
  return words::TimeText(clock, instant).substr(0, 5);
}

// A period in whole minutes, rounded outwards, so that nobody who follows it is inside unawares.
std::string PeriodText(const clocks::ZoneClock& clock, const day::Period& period) {
  return MinuteText(clock, period.begin) + "-" +
         MinuteText(clock, period.end + std::chrono::seconds(59));
}

// To the nearest minute, "00:43+1" past midnight.
std::string MinuteText(const clocks::ZoneClock& clock, std::chrono::local_days date,
                       std::optional<Instant> instant) {
  if (!instant) return std::string(kNone);
  const Instant minute = NearestMinute(clock, *instant);
  const auto apart = std::chrono::floor<days>(clock.CivilAt(minute)) - date;
  return MinuteText(clock, minute) + (apart > days(0) ? "+1" : apart < days(0) ? "-1" : "");
}

}  // namespace

std::string DaysHead(const ChosenPlace& chosen) {
  const std::string clock = chosen.countryClock ? " (the country's clock)" : "";
  return Line(OneLine(PlaceName(chosen.place)) + clock) + "\n" +
         RowOf({"Date",
                "Sunrise",
                "Sunset",
                {PeriodName(day::PeriodKind::Durvela), PeriodName(day::PeriodKind::Gulik),
                 PeriodName(day::PeriodKind::Yum)},
                "Clock"});
}

std::string DaysRow(const ChosenPlace& chosen, const day::Day& value) {
  const auto weekday = static_cast<std::size_t>(value.weekday - 1);
  Columns columns = {words::DateText(value.date) + " " +
                         foundation::EnglishNames().weekdays.at(weekday).substr(0, 3),
                     MinuteText(chosen.clock, value.date, value.sun.rise),
                     MinuteText(chosen.clock, value.date, value.sun.set)};
  columns.periods.fill(std::string(kNone));
  for (const day::Period& period : value.periods) {
    columns.periods.at(static_cast<std::size_t>(period.kind)) = PeriodText(chosen.clock, period);
  }
  columns.clock = words::UtcText(chosen.clock.OffsetAt(chosen.clock.NoonOf(value.date)).east);
  Append(columns.clock, ", ", words::ChangeOn(chosen.clock, value.date));
  Append(columns.clock, ". ", words::NoSunText(value.sun.state));
  return RowOf(columns);
}

}  // namespace cli
