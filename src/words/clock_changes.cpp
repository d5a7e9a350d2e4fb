#include "words/clock_changes.h"

#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "words/clock_text.h"

namespace words {
namespace {

using clocks::Change;
using clocks::Instant;
using clocks::ZoneClock;
using std::chrono::days;
using std::chrono::local_days;

constexpr int kMostChanges = 3;  // in a line

// The first change after an instant and before another.
std::optional<Change> ChangeBetween(const ZoneClock& clock, Instant after, Instant end) {
  const auto change = clock.NextChange(after);
  return change && change->at < end ? change : std::nullopt;
}

// "1 November": the civil date that a change leads to.
std::string DateOf(const ZoneClock& clock, const Change& change) {
  const std::chrono::year_month_day date(std::chrono::floor<days>(clock.CivilAt(change.at)));
  return foundation::NumberText(static_cast<unsigned>(date.day())) + " " +
         foundation::MonthName(static_cast<int>(static_cast<unsigned>(date.month())));
}

// ", from 1 November UTC-5" for each change.
std::string Changes(const ZoneClock& clock, local_days first, local_days last) {
  const Instant end = clock.BeginOf(last + days(1));
  std::string text;
  auto change = ChangeBetween(clock, clock.BeginOf(first), end);
  for (int count = 0; change && count < kMostChanges; ++count) {
    text += ", from " + DateOf(clock, *change) + " " + UtcText(change->after);
    change = ChangeBetween(clock, change->at, end);
  }
  return change ? text + ", …" : text;
}

}  // namespace

std::string_view ChangeOn(const ZoneClock& clock, local_days date) {
  // A midnight that the clock skips belongs to the date that begins with the change.
  const Instant before = clock.BeginOf(date) - std::chrono::seconds(1);
  const auto change = ChangeBetween(clock, before, clock.BeginOf(date + days(1)));
  if (!change) return "";
  return change->after < change->before ? "clocks go back" : "clocks go forward";
}

std::string ClockOfDays(const ZoneClock& clock, local_days first, local_days last) {
  return ClockName(clock.OffsetAt(clock.BeginOf(first))) + Changes(clock, first, last);
}

std::string ZoneOfDays(const ZoneClock& clock, local_days first, local_days last) {
  return UtcText(clock.OffsetAt(clock.BeginOf(first)).east) + Changes(clock, first, last);
}

}  // namespace words
