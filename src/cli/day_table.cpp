#include "cli/day_table.h"

#include <optional>

#include "cli/failure.h"
#include "cli/period_names.h"
#include "cli/table_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "words/clock_changes.h"
#include "words/clock_text.h"
#include "words/sun_text.h"

namespace cli {
namespace {

using clocks::Instant;
using std::chrono::local_days;

// A row of the table: "Sunset        20:31:00".
std::string Row(std::string_view label, const std::string& text) {
  constexpr std::size_t kLabelWidth = 14;
  return Line(Padded(std::string(label), kLabelWidth) + text);
}

// "Wednesday, 1 July 2026"
std::string LongDate(local_days date, int weekday) {
  const auto& names = foundation::EnglishNames();
  const std::chrono::year_month_day fields(date);
  const auto day = static_cast<unsigned>(fields.day());
  const auto month = static_cast<unsigned>(fields.month());
  return names.weekdays.at(static_cast<std::size_t>(weekday - 1)) + ", " +
         foundation::NumberText(day) + " " + names.months.at(month - 1) + " " +
         foundation::NumberText(static_cast<int>(fields.year()));
}

// "EDT, UTC-4"
std::string ClockText(const ChosenPlace& chosen, local_days date) {
  std::string text = words::ClockName(chosen.clock.OffsetAt(chosen.clock.NoonOf(date)));
  if (chosen.countryClock) text += ", the country's clock";
  Append(text, "; ", words::ChangeOn(chosen.clock, date));
  return text;
}

// "20:31:00", with the date if it is another one.
std::string Moment(const ChosenPlace& chosen, local_days date, std::optional<Instant> instant) {
  if (!instant) return std::string(kNone);
  const auto itsDate = std::chrono::floor<std::chrono::days>(chosen.clock.CivilAt(*instant));
  return words::TimeText(chosen.clock, *instant) +
         (itsDate == date ? "" : ", " + words::DateText(itsDate));
}

}  // namespace

std::string DayTable(const ChosenPlace& chosen, const day::Day& value) {
  const auto at = [&](std::optional<Instant> instant) {
    return Moment(chosen, value.date, instant);
  };
  std::string text =
      Line(OneLine(PlaceName(chosen.place))) +
      Line(LongDate(value.date, value.weekday) + " (" + ClockText(chosen, value.date) + ")") + "\n";
  if (value.sun.state == day::Sun::State::Rises) {
    text += Row("Sunrise", at(value.sun.rise)) + Row("Sunset", at(value.sun.set));
  } else {
    text += Line(std::string(words::NoSunText(value.sun.state)));
  }
  text += Row("Next sunrise", at(value.sun.nextRise));
  if (!value.periods.empty()) text += "\n";
  for (const day::Period& period : value.periods) {
    text += Row(PeriodName(period.kind), at(period.begin) + " to " + at(period.end));
  }
  return text;
}

}  // namespace cli
