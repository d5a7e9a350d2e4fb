#include "screens/dashboard_tick.h"

#include <optional>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "engine/record_chart.h"
#include "foundation/date_text.h"
#include "foundation/resume.h"
#include "foundation/time_text.h"
#include "screens/frmMain.h"
#include "screens/place_labels.h"

namespace screens {
namespace {

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

}  // namespace

void Tick(foundation::DateTime now, foundation::Settings& settings,
          foundation::SessionTable& session, frmMain& labels) {
  ShowMoment(now, labels);
  ShowDefaultPlace(settings, PlaceLabelsOf(labels));
  Resume([&] { CopyPlace(PlaceLabelsOf(labels), session.Current()); });

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
}

}  // namespace screens
