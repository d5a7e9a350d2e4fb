#include "screens/day_scene.h"

#include <cmath>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/weekday_segments.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"

namespace screens {
namespace {

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

}  // namespace

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
