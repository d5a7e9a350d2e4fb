#include "dayperiods/clsUtilities.h"

#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/weekday_segments.h"
#include "engine/clsPP.h"
#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/zzVorin.h"

namespace dayperiods {

using foundation::DecimalToTimeText;
using foundation::FloorToInt16;
using foundation::NumberText;

double DaylightSegments::Boundary(int number) const {
  double t = sunrise;
  for (int i = 1; i < number; ++i) t = t + segment;
  return t;
}

DaylightSegments clsUtilities::Divide(double nDay, double nMonth, double nYear, double nHour,
                                      double nMin, double nSec) const {
  const auto date = foundation::ReadDateTime(
      NumberText(nDay) + "-" + foundation::MonthName(foundation::RoundToInt16(nMonth)) + "-" +
      NumberText(nYear));
  foundation::ReadDateTime(NumberText(nHour) + ":" + NumberText(nMin) + ":" + NumberText(nSec));

  const foundation::SessionRecord& record = session_.Current();
  engine::clsPP place;
  place.GenHoro(nDay, nMonth, nYear, nHour, nMin, nSec, record.LongitudeText, record.LatitudeText,
                record.ZoneMeridianText, record.AyanamsaChoice, record.RahuKetuFlag,
                record.WarTimeCorrection);

  // Copies: the day that Sunrise changes before sunrise stays with it.
  double latitude = place.ppLatitude, longitude = place.ppLongitude, zone = place.ppZoneHours;
  std::int16_t day = FloorToInt16(nDay), month = FloorToInt16(nMonth), year = FloorToInt16(nYear);
  std::int16_t hour = FloorToInt16(nHour), minute = FloorToInt16(nMin), second = FloorToInt16(nSec);
  const SunriseRows sun =
      clsBirthDetails().Sunrise(latitude, longitude, zone, day, month, year, hour, minute, second);
  return {sun.clockRise, (sun.clockSet - sun.clockRise) / kSegmentsOfDaylight,
          foundation::WeekdayOf(date)};
}

void clsUtilities::CalcDurvela(double nDay, double nMonth, double nYear, double nHour, double nMin,
                               double nSec) {
  const DaylightSegments day = Divide(nDay, nMonth, nYear, nHour, nMin, nSec);
  const int number = DurvelaSegment(day.weekday);
  DurvelaStart = DecimalToTimeText(day.Boundary(number));
  DurvelaEnd = DecimalToTimeText(day.Boundary(number + 1));
}

void clsUtilities::CalcGulikYum(double nDay, double nMonth, double nYear, double nHour, double nMin,
                                double nSec) {
  const DaylightSegments day = Divide(nDay, nMonth, nYear, nHour, nMin, nSec);
  const double gulik = day.Boundary(GulikSegment(day.weekday));
  const double yum = day.Boundary(YumSegment(day.weekday));
  GulikStart = DecimalToTimeText(gulik);
  GulikEnd = DecimalToTimeText(gulik + day.segment);
  YumStart = DecimalToTimeText(yum);
  YumEnd = DecimalToTimeText(yum + day.segment);
}

}  // namespace dayperiods
