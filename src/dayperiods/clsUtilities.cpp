#include "dayperiods/clsUtilities.h"

#include "dayperiods/sunrise_at.h"
#include "dayperiods/weekday_segments.h"
#include "engine/record_chart.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace dayperiods {

using foundation::DecimalToTimeText;
using foundation::FloorToInt16;

double DaylightSegments::Boundary(int number) const {
  double t = sunrise;
  for (int i = 1; i < number; ++i) t = t + segment;
  return t;
}

DaylightSegments clsUtilities::SegmentsOf(double nDay, double nMonth, double nYear, double nHour,
                                          double nMin, double nSec) const {
  const auto date = foundation::ReadDateTime(
      foundation::DayMonthYear(nDay, foundation::RoundToInt16(nMonth), nYear, '-'));
  foundation::ReadDateTime(foundation::HourMinuteSecond(nHour, nMin, nSec));

  engine::clsPP place;
  engine::GenRecordHoro(place, session_.Current(), nDay, nMonth, nYear, nHour, nMin, nSec);
  const SunriseRows sun = SunriseAt(place, {.year = FloorToInt16(nYear),
                                            .month = FloorToInt16(nMonth),
                                            .day = FloorToInt16(nDay),
                                            .hour = FloorToInt16(nHour),
                                            .minute = FloorToInt16(nMin),
                                            .second = FloorToInt16(nSec)});
  return {sun.clockRise, (sun.clockSet - sun.clockRise) / kSegmentsOfDaylight,
          foundation::WeekdayOf(date)};
}

void clsUtilities::CalcDurvela(double nDay, double nMonth, double nYear, double nHour, double nMin,
                               double nSec) {
  const DaylightSegments day = SegmentsOf(nDay, nMonth, nYear, nHour, nMin, nSec);
  const int number = DurvelaSegment(day.weekday);
  DurvelaStart = DecimalToTimeText(day.Boundary(number));
  DurvelaEnd = DecimalToTimeText(day.Boundary(number + 1));
}

void clsUtilities::CalcGulikYum(double nDay, double nMonth, double nYear, double nHour, double nMin,
                                double nSec) {
  const DaylightSegments day = SegmentsOf(nDay, nMonth, nYear, nHour, nMin, nSec);
  const double gulik = day.Boundary(GulikSegment(day.weekday));
  const double yum = day.Boundary(YumSegment(day.weekday));
  GulikStart = DecimalToTimeText(gulik);
  GulikEnd = DecimalToTimeText(gulik + day.segment);
  YumStart = DecimalToTimeText(yum);
  YumEnd = DecimalToTimeText(yum + day.segment);
}

}  // namespace dayperiods
