#include "words/day_row.h"

#include "foundation/time_text.h"
#include "words/clock_text.h"

namespace words {
namespace {

using clocks::ZoneClock;

std::string TimeOf(const ZoneClock& clock, std::optional<clocks::Instant> instant) {
  return instant ? TimeText(clock, *instant) : kNoTime;
}

std::string DaylightOf(const day::Sun& sun) {
  constexpr double kSecondsPerHour = 3600;
  if (!sun.rise || !sun.set) return kNoTime;
  const auto seconds = static_cast<double>((*sun.set - *sun.rise).count());
  return foundation::DecimalToTimeText(seconds / kSecondsPerHour);
}

}  // namespace

DayRow DayRowOf(const day::Day& day, const ZoneClock& clock, int weekday) {
  const auto period = [&](day::PeriodKind kind) -> DayRow::Period {
    const auto found = day::PeriodOn(day, kind, weekday);
    if (!found) return {kNoTime, kNoTime};
    return {TimeText(clock, found->begin), TimeText(clock, found->end)};
  };
  return {TimeOf(clock, day.sun.rise),
          TimeOf(clock, day.sun.set),
          DaylightOf(day.sun),
          period(day::PeriodKind::Durvela),
          period(day::PeriodKind::Gulik),
          period(day::PeriodKind::Yum)};
}

DayRow EmptyDayRow() {
  const DayRow::Period none = {kNoTime, kNoTime};
  return {kNoTime, kNoTime, kNoTime, none, none, none};
}

}  // namespace words
