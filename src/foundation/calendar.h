// Dates and times of day as one number, on the Gregorian calendar throughout, years 100 to 9999.
#pragma once

namespace foundation {

// Days since 30 December 1899 at midnight; the fraction, counted forward also before that day, is
// the time of day. Fields are read back to the nearest second.
using DateTime = double;

struct DateTimeFields {
  int year, month, day;      // month 1 to 12
  int hour, minute, second;  // hour 0 to 23
  friend bool operator==(const DateTimeFields&, const DateTimeFields&) = default;
};

// The midnight that begins a date; fields out of range carry, so day 0 is the last day of the
// month before and month 13 the next January. The fields are rounded to 16 bits (Overflow). No
// century is added to a short year. InvalidCall outside the years 100 to 9999.
DateTime DateFromParts(double year, double month, double day);

// A time of day in days, with carries: 24 hours are 1, 60 seconds a minute. The fields are
// rounded to 16 bits (Overflow).
DateTime TimeFromParts(double hour, double minute, double second);

// InvalidCall outside the years 100 to 9999.
DateTimeFields FieldsOf(DateTime moment);

// 1 = Sunday to 7 = Saturday. InvalidCall as FieldsOf.
int WeekdayOf(DateTime moment);

}  // namespace foundation
