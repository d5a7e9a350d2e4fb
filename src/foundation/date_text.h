// Dates and times as texts, and read from them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/calendar.h"

namespace foundation {

// "5 March 2011" in the user's locale, with what stands between the three. InvalidCall for a month
// outside 1 to 12.
std::string DayMonthYear(double day, int month, double year, char between);

// "6:5:9", without leading zeros.
std::string HourMinuteSecond(double hour, double minute, double second);

// A date ("5-March-2011", "5/3/2011": day, month, year), a time ("6:12", "6:12:9", "12:00 PM"),
// or a date, a blank and a time. Fields stand between "-", "/" or blanks; a month is a number, or
// a full name in the user's locale or in English, in any case. A year 0 to 29 is 2000 to 2029, a
// year 30 to 99 is 1930 to 1999. Nothing where the text is no such thing or the day does not
// exist; "24:00" is no time.
std::optional<DateTime> TryReadDateTime(std::string_view text);

// The same; TypeMismatch where the text is none.
DateTime ReadDateTime(std::string_view text);

// A time alone, as a fraction of a day.
std::optional<DateTime> TryReadTime(std::string_view text);

// A date without a time, as a user types it: fields may also stand between dots ("5.3.2011"), and
// MonthByBeginning knows the month ("5 Mar 2011", "5. Mar. 2011").
std::optional<DateTime> TryReadTypedDate(std::string_view text);

// "06:05 PM", English in every locale, so that any keyboard can type it. The seconds are dropped.
std::string HourMinuteHalf(DateTime time);

}  // namespace foundation
