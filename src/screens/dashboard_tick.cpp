#include "screens/dashboard_tick.h"

#include <optional>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "engine/record_chart.h"
#include "foundation/date_text.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"
#include "screens/clock_row.h"
#include "screens/frmMain.h"
#include "screens/place_labels.h"
#include "words/clock_text.h"
#include "words/record_zone.h"

namespace screens {
namespace {

using clocks::ZoneClock;
using foundation::DateTimeFields;
using foundation::DecimalToTimeText;
using foundation::Filled;
using foundation::Resume;

void ShowMoment(foundation::DateTime now, frmMain& labels) {
  Resume([&] {
    const DateTimeFields at = foundation::FieldsOf(now);
    labels.lblDate.caption = foundation::DayMonthYear(at.day, at.month, at.year, ' ');
  });
  Resume([&] {
    const DateTimeFields at = foundation::FieldsOf(now);
    labels.lblTime.caption = foundation::HourMinuteSecond(at.hour, at.minute, at.second);
  });
}

// The moment of the tick, read back from the captions that show it.
DateTimeFields ShownMoment(const frmMain& labels) {
  DateTimeFields moment{};
  Resume([&] {
    const DateTimeFields date =
        foundation::FieldsOf(foundation::ReadDateTime(labels.lblDate.caption));
    moment.day = date.day;
    moment.month = date.month;
    moment.year = date.year;
  });
  Resume([&] {
    const DateTimeFields time =
        foundation::FieldsOf(foundation::ReadDateTime(labels.lblTime.caption));
    moment.hour = time.hour;
    moment.minute = time.minute;
    moment.second = time.second;
  });
  return moment;
}

// In place of the period, which is only there if the sun rises and sets.
std::string_view NoDurvela(day::Sun::State sun) {
  switch (sun) {
    case day::Sun::State::PolarDay:
      return "No sunset today";
    case day::Sun::State::PolarNight:
      return "No sunrise today";
    default:
      return "none";
  }
}

// Rise and set by the session record, and the labels that show them and Durvela.
std::optional<dayperiods::SunriseRows> ShowByRecord(foundation::SessionTable& session,
                                                    frmMain& labels) {
  const DateTimeFields at = ShownMoment(labels);
  engine::clsPP place;
  Resume([&] { engine::GenRecordHoro(place, session.Current(), at); });
  std::optional<dayperiods::SunriseRows> sun;
  Resume([&] { sun = dayperiods::SunriseAt(place, at); });
  Resume([&] { labels.lblSR.caption = DecimalToTimeText(Filled(sun).clockRise); });
  Resume([&] { labels.lblSS.caption = DecimalToTimeText(Filled(sun).clockSet); });

  dayperiods::clsUtilities periods(session);
  Resume([&] { periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second); });
  labels.lblDurvela.caption = periods.DurvelaStart + "-" + periods.DurvelaEnd;
  return sun;
}

// Replaces what the record gives if it is not what the day has: beyond 63 degrees, where the solar
// series fails, and where the record's longitude is read as minutes.
void ShowByDay(const day::Day& day, const ZoneClock& clock, int weekday,
               const std::optional<dayperiods::SunriseRows>& byRecord, frmMain& labels) {
  const auto text = [&](std::optional<clocks::Instant> instant) {
    return instant ? words::TimeText(clock, *instant) : std::string("none");
  };
  const std::string rise = text(day.sun.rise), set = text(day.sun.set);
  if (byRecord && DecimalToTimeText(byRecord->clockRise) == rise &&
      DecimalToTimeText(byRecord->clockSet) == set) {
    return;
  }
  labels.lblSR.caption = rise;
  labels.lblSS.caption = set;
  const auto durvela = day::PeriodOn(day, day::PeriodKind::Durvela, weekday);
  labels.lblDurvela.caption = durvela ? text(durvela->begin) + "-" + text(durvela->end)
                                      : std::string(NoDurvela(day.sun.state));
}

}  // namespace

void Tick(foundation::DateTime now, foundation::Settings& settings,
          foundation::SessionTable& session, frmMain& labels) {
  ShowMoment(now, labels);
  ShowDefaultPlace(settings, PlaceLabelsOf(labels));
  ShowCountrysZone(labels);
  Resume([&] { CopyPlace(PlaceLabelsOf(labels), session.Current()); });
  ShowByRecord(session, labels);
}

void TickByOwnClock(clocks::Instant now, std::chrono::seconds machineOffset,
                    foundation::Settings& settings, foundation::SessionTable& session,
                    day::KeptPlace& place, frmMain& labels) {
  ShowDefaultPlace(settings, PlaceLabelsOf(labels));
  Resume([&] { place.Set(settings, TextsOf(PlaceLabelsOf(labels))); });

  const ZoneClock& clock = place.Clock().clock;
  const clocks::CivilTime time = clock.CivilAt(now);
  Resume([&] { ShowMoment(foundation::DateTimeOf(time), labels); });
  ShowOwnClock(place.Clock(), now, machineOffset, labels);

  const std::chrono::local_days sunDate = place.SunDate(now);
  Resume([&] {
    CopyPlace(PlaceLabelsOf(labels), session.Current());
    words::SetRecordZone(session.Current(), clock, sunDate);
  });
  const auto byRecord = ShowByRecord(session, labels);
  if (const day::Day* day = place.On(sunDate)) {
    const int weekday = day::WeekdayOf(std::chrono::floor<std::chrono::days>(time));
    ShowByDay(*day, clock, weekday, byRecord, labels);
  }
}

}  // namespace screens
