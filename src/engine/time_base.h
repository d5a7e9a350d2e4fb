// The moment of a chart: day number, Julian centuries, civil date.
#pragma once

#include <cstdint>

#include "foundation/calendar.h"

namespace engine {

inline constexpr double kDaysPerCentury = 36525;
inline constexpr double kHourInCenturies = 1.0 / 24 / kDaysPerCentury;

// Days in the proleptic Gregorian calendar: the Julian Date at midnight less 1720994.5, so 31
// December 1899 is 694025. Overflow beyond 32 bits.
std::int32_t DayNumber(int day, int month, std::int32_t year);

// A moment relative to Greenwich noon of 31 December 1899 (JD 2415020.0).
struct TimeBase {
  double DayPart;  // days from Greenwich noon of the civil date; may be below 0 or above 1
  double TimeT;    // Julian centuries
};

// `hours` is the zone's clock time, `zoneHours` is east positive, `correction` is hours added to
// the clock.
TimeBase TimeBaseOf(std::int32_t dayNumber, double hours, double zoneHours, double correction);

// When a chart is cast. The ayanamsa and the corrected node change with the date, not with the
// time.
struct ChartMoment {
  TimeBase time;
  foundation::DateTime date;  // the midnight that begins it
};

// A moment in Universal Time: the midnight that begins a date, years 100 to 9999, and the hours
// from it, which may lie outside 0 to 24 to give the date of another zone.
ChartMoment UniversalTime(foundation::DateTime date, double hours);

// The midnight that begins a date. A year below 100 is read like a two-digit text: 0 to 29 is 2000
// to 2029, 30 to 99 is 1930 to 1999. InvalidCall for a month that has no name; TypeMismatch for a
// day that does not exist or a year outside 100 to 9999.
foundation::DateTime CivilDate(int day, int month, std::int32_t year);

}  // namespace engine
