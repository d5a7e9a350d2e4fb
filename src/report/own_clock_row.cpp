#include "report/own_clock_row.h"

#include <chrono>

#include "clocks/zone_clock.h"
#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "engine/record_chart.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"
#include "words/clock_changes.h"
#include "words/record_zone.h"

namespace report {
namespace {

using foundation::DateTimeFields;
using foundation::DecimalToTimeText;

dayperiods::SunriseRows SunOf(const DateTimeFields& at, const foundation::SessionRecord& record) {
  engine::clsPP chart;
  engine::GenRecordHoro(chart, record, at);
  return dayperiods::SunriseAt(chart, at);
}

}  // namespace

words::DayRow RowByRecord(foundation::DateTime moment, const foundation::SessionTable& session) {
  const DateTimeFields at = foundation::FieldsOf(moment);
  dayperiods::clsUtilities periods(session);
  periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
  periods.CalcGulikYum(at.day, at.month, at.year, at.hour, at.minute, at.second);
  const dayperiods::SunriseRows sun = SunOf(at, session.Current());
  return {DecimalToTimeText(sun.clockRise),
          DecimalToTimeText(sun.clockSet),
          DecimalToTimeText(sun.clockSet - sun.clockRise),
          {periods.DurvelaStart, periods.DurvelaEnd},
          {periods.GulikStart, periods.GulikEnd},
          {periods.YumStart, periods.YumEnd}};
}

OwnClockRow RowByOwnClock(day::KeptPlace& place, foundation::DateTime moment,
                          foundation::SessionTable& session) {
  const clocks::ZoneClock& clock = place.Clock().clock;
  const clocks::CivilTime time = foundation::CivilTimeOf(moment);
  const auto date = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::local_days sunDate = place.SunDate(clock.Read(time).earlier);
  words::SetRecordZone(session.Current(), clock, sunDate);

  OwnClockRow row = {
      .times = words::EmptyDayRow(), .sun = {}, .change = words::ChangeOn(clock, date)};
  if (const day::Day* day = place.On(sunDate)) {
    row.times = words::DayRowOf(*day, clock, day::WeekdayOf(date));
    row.sun = day->sun.state;
  } else {
    foundation::Resume([&] { row.times = RowByRecord(moment, session); });
  }
  return row;
}

}  // namespace report
