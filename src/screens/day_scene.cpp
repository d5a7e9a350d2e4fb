#include "screens/day_scene.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/weekday_segments.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"
#include "words/clock_text.h"
#include "words/sun_text.h"

namespace screens {
namespace {

using clocks::Instant;
using clocks::ZoneClock;

std::string ShortTime(double hours) {
  return foundation::DecimalToTimeText(hours, 24, true);
}

// Rounds up to the next whole minute, unless the time rounded to seconds is one already.
std::string ShortEnd(double hours) {
  const double shown = foundation::TimeTextToDecimal(foundation::DecimalToTimeText(hours));
  return ShortTime(shown + 59.0 / 3600);
}

DayScene::PeriodTimes PeriodOf(const dayperiods::DaylightSegments& day, int segment) {
  return {segment, ShortTime(day.Boundary(segment)) + " - " + ShortEnd(day.Boundary(segment + 1))};
}

// The sun's position, to the minute; finer steps would not be visible.
double SunAt(const foundation::DateTimeFields& now, const dayperiods::DaylightSegments& day) {
  double hours = now.hour + now.minute / 60.0 - day.sunrise;
  hours -= 24 * std::floor(hours / 24);
  const double light = day.segment * dayperiods::kSegmentsOfDaylight;
  return hours <= light ? hours / light : 1 + (hours - light) / (24 - light);
}

DayScene::PeriodTimes DayScene::*TimesOf(day::PeriodKind kind) {
  switch (kind) {
    case day::PeriodKind::Durvela:
      return &DayScene::durvela;
    case day::PeriodKind::Gulik:
      return &DayScene::gulik;
    default:
      return &DayScene::yum;
  }
}

std::string ShortTime(const ZoneClock& clock, Instant instant) {
  constexpr std::size_t kHoursAndMinutes = 5;
  return words::TimeText(clock, instant).substr(0, kHoursAndMinutes);
}

DayScene::PeriodTimes PeriodOf(const ZoneClock& clock, const day::Period& period) {
  return {period.part, ShortTime(clock, period.begin) + " - " +
                           ShortTime(clock, period.end + std::chrono::seconds(59))};
}

// 0 to 1 from one instant to another.
double Fraction(Instant at, Instant from, Instant to) {
  if (from >= to) return 0;
  return std::clamp(std::chrono::duration<double>(at - from) / (to - from), 0.0, 1.0);
}

// On its way in the calendar day, to the minute. Without a sunset before or a sunrise after it,
// the night is taken for half a day.
double SunAt(Instant now, const day::Day& today, const day::Day* yesterday) {
  constexpr auto kHalfDay = std::chrono::hours(12);
  const Instant minute = std::chrono::floor<std::chrono::minutes>(now);
  const Instant rise = *today.sun.rise, set = *today.sun.set;
  if (now < rise) {
    const auto before = yesterday != nullptr ? yesterday->sun.set : std::nullopt;
    return 1 + Fraction(minute, before.value_or(rise - kHalfDay), rise);
  }
  if (now < set) return Fraction(minute, rise, set);
  return 1 + Fraction(minute, set, today.sun.nextRise.value_or(set + kHalfDay));
}

}  // namespace

DayScene SceneOf(Instant now, day::KeptPlace& place, const foundation::SessionTable& session) {
  const ZoneClock& clock = place.Clock().clock;
  const clocks::CivilTime time = clock.CivilAt(now);
  const auto date = std::chrono::floor<std::chrono::days>(time);
  const day::Day* today = place.On(date);
  if (today == nullptr) return SceneOf(foundation::DateTimeOf(time), session);

  DayScene scene;
  if (today->periods.empty()) {
    scene.undivided = words::NoSunText(today->sun.state);
    return scene;
  }
  for (const day::Period& period : today->periods) {
    scene.*TimesOf(period.kind) = PeriodOf(clock, period);
  }
  scene.sunrise = ShortTime(clock, *today->sun.rise);
  scene.sunset = ShortTime(clock, *today->sun.set);
  scene.sun = SunAt(now, *today, place.On(date - std::chrono::days(1)));
  scene.divided = true;
  return scene;
}

DayScene SceneOf(foundation::DateTime now, const foundation::SessionTable& session) {
  DayScene scene;
  foundation::Resume([&] {
    const foundation::DateTimeFields at = foundation::FieldsOf(now);
    const auto day =
        dayperiods::clsUtilities(session).SegmentsOf(at.day, at.month, at.year, 12, 0, 0);
    if (!(day.segment > 0)) return;
    scene.durvela = PeriodOf(day, dayperiods::DurvelaSegment(day.weekday));
    scene.gulik = PeriodOf(day, dayperiods::GulikSegment(day.weekday));
    scene.yum = PeriodOf(day, dayperiods::YumSegment(day.weekday));
    scene.sunrise = ShortTime(day.sunrise);
    scene.sunset = ShortTime(day.Boundary(dayperiods::kSegmentsOfDaylight + 1));
    scene.sun = SunAt(at, day);
    scene.divided = true;
  });
  return scene;
}

}  // namespace screens
