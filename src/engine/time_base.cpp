#include "engine/time_base.h"

#include <cmath>

#include "foundation/checked.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"

namespace engine {

std::int32_t DayNumber(int day, int month, std::int32_t year) {
  constexpr double kDaysPerMonth = 30.6;  // from March on
  double y = year;
  double m = month;
  if (m < 3) {
    m += 12;
    y -= 1;
  }
  const double c = std::floor(y / 100);
  const double k = std::floor(static_cast<float>((m + 1) * kDaysPerMonth));
  return foundation::RoundToInt32(365 * y + std::floor(y / 4) + k + 2 - c + std::floor(c / 4) +
                                  day);
}

TimeBase TimeBaseOf(std::int32_t dayNumber, double hours, double zoneHours, double correction) {
  constexpr double kEpoch = 694025;
  const double dayPart = (hours - (zoneHours + 12.0) + correction) / 24;
  return {dayPart, foundation::Finite((dayNumber - kEpoch + dayPart) / kDaysPerCentury)};
}

ChartMoment UniversalTime(foundation::DateTime date, double hours) {
  const foundation::DateTimeFields on = foundation::FieldsOf(date);
  return {TimeBaseOf(DayNumber(on.day, on.month, on.year), hours, 0, 0), date};
}

foundation::DateTime CivilDate(int day, int month, std::int32_t year) {
  if (day >= 1 && day <= 31 && month >= 1 && month <= 12 && year >= 100 && year <= 9999) {
    const foundation::DateTime date = foundation::DateFromParts(year, month, day);
    if (foundation::FieldsOf(date).day == day) return date;
  }
  // Not a valid date as given; let the text reader decide.
  return foundation::ReadDateTime(foundation::DayMonthYear(day, month, year, '-'));
}

}  // namespace engine
