// Dates and times as one number, in the proleptic Gregorian calendar, years 100 to 9999.
#pragma once

#include <chrono>

namespace foundation {

// Days since midnight of 30 December 1899. The fraction is the time of day and always counts
// forward, even before that day. Fields are rounded to the nearest second.
using DateTime = double;

struct DateTimeFields {
  int year, month, day;      // month 1 to 12
  int hour, minute, second;  // hour 0 to 23
  friend bool operator==(const DateTimeFields&, const DateTimeFields&) = default;
};

// The midnight that begins a date. Fields out of range carry: day 0 is the last day of the previous
// month, month 13 the next January. Fields are rounded to 16 bits (Overflow). Short years get no
// century. InvalidCall outside the years 100 to 9999.
DateTime DateFromParts(double year, double month, double day);

// A time of day in days. Fields carry: 24 hours are 1. Fields are rounded to 16 bits (Overflow).
DateTime TimeFromParts(double hour, double minute, double second);

// InvalidCall outside the years 100 to 9999.
DateTimeFields FieldsOf(DateTime moment);

// 1 = Sunday to 7 = Saturday. InvalidCall as for FieldsOf.
int WeekdayOf(DateTime moment);

// The same moment as seconds of a clock and calendar. InvalidCall outside the years 100 to 9999.
std::chrono::local_seconds CivilTimeOf(DateTime moment);
DateTime DateTimeOf(std::chrono::local_seconds time);

}  // namespace foundation
